#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "presets/Clamped.h"
#include "presets/PresetCollection.h"

namespace tarnview {

/// A named set of data items to plot, with a fixed vertical maximum or none.
class clsSampleGraphPreset {
 public:
  std::vector<int> colDataItems;  ///< item numbers (intSeq), each once
  std::string strName;
  bool blnFixGraphMax = false;
  std::int32_t lngGraphMax = 0;
  LogFamilyId lngLogFamily;

  clsSampleGraphPreset Duplicate() const { return *this; }
};

using clsSampleGraphPresets = PresetCollection<clsSampleGraphPreset>;

}  // namespace tarnview
