#pragma once

#include "base/Records.h"

namespace tarnview {

/// The presets of one kind, in the user's order.
template <class Preset>
class PresetCollection : public Records<Preset> {
 public:
  static constexpr const char* NEW_NAME = "New Preset";

  static Preset BlankPreset() {
    Preset preset;
    preset.strName = NEW_NAME;
    return preset;
  }

  /// Copies of all presets of another collection, behind those that are here.
  void AddCollection(const PresetCollection& other) {
    const auto copies = other.records_;  // the other one may be this one
    this->records_.insert(this->records_.end(), copies.begin(), copies.end());
  }
  /// Drops the presets of a log family.
  void RemoveFamily(int family) {
    std::erase_if(this->records_,
                  [family](const Preset& preset) { return preset.lngLogFamily == family; });
  }

  PresetCollection Duplicate() const { return *this; }
};

}  // namespace tarnview
