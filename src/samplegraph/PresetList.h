#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/Numbers.h"
#include "model/clsLogFamilies.h"
#include "ui/ListView.h"

namespace tarnview {

/// A window's list of the presets of one log family; each row bears its preset's place in the
/// collection.
template <class Collection>
class PresetList {
 public:
  using Preset = typename Collection::Record;

  PresetList(ListView& lvwPresets, Collection& presets, const clsLogFamilies& families)
      : list_(lvwPresets), presets_(presets), families_(families) {}

  /// Lists the presets of a file type's family, or "[None]". `blnKeepPosition` selects the last
  /// row.
  void Populate(bool blnKeepPosition, int fileType) {
    const int family = families_.FirstLogFamily(fileType);
    std::vector<ListView::Row> rows;
    for (int n = 1; n <= presets_.Count(); ++n) {
      if (presets_.Item(n).lngLogFamily != family) continue;
      ListView::Row row;
      row.texts = {presets_.Item(n).strName};
      row.tag = std::to_string(n);
      rows.push_back(std::move(row));
    }
    if (rows.empty()) rows.emplace_back().texts = {"[None]"};
    list_.SetRows(std::move(rows));
    if (blnKeepPosition && HasRows()) list_.Select(list_.Count());
  }
  bool HasRows() const { return list_.Count() > 0 && !list_.At(1).tag.empty(); }

  /// The preset of a row; nullptr for "[None]" and for no row.
  Preset* Of(int row) const {
    if (row < 1 || row > list_.Count()) return nullptr;
    const int position = StringToLong(list_.At(row).tag);
    if (position >= 1 && position <= presets_.Count()) return &presets_.Item(position);
    return nullptr;
  }
  Preset* Selected() const { return Of(list_.SelectedRow()); }
  /// Clicks on the first preset of that name; false if there is none.
  bool ApplyNamed(const std::string& name) {
    for (int row = 1; row <= list_.Count(); ++row) {
      const Preset* preset = Of(row);
      if (!preset || preset->strName != name) continue;
      list_.UserSelects(row);
      return true;
    }
    return false;
  }
  /// A blank preset of that name and the file type's family, not yet in the collection.
  Preset NewPreset(const std::string& name, int fileType) const {
    Preset preset = Collection::BlankPreset();
    preset.strName = name;
    preset.lngLogFamily = families_.FirstLogFamily(fileType);
    return preset;
  }
  void Add(Preset preset) { presets_.AddDirect(std::move(preset)); }

 private:
  ListView& list_;
  Collection& presets_;
  const clsLogFamilies& families_;
};

}  // namespace tarnview
