#pragma once

#include "presets/clsSampleGraphPreset.h"
#include "presets/clsScatterGraphPreset.h"

namespace tarnview {

// The presets of the built-in definition are there as long as it is the one in use. They are no part of the settings:
// only a changed one is the user's own.

/// Adds those whose names no preset of Universal logs has yet.
void AddBuiltInPresets(clsSampleGraphPresets& samples, clsScatterGraphPresets& scatters);

/// Knows a preset that is just as the built-in definition has it.
class BuiltInPresets {
 public:
  BuiltInPresets();
  bool Holds(const clsSampleGraphPreset& preset) const;
  bool Holds(const clsScatterGraphPreset& preset) const;

 private:
  clsSampleGraphPresets samples_;
  clsScatterGraphPresets scatters_;
};

}  // namespace tarnview
