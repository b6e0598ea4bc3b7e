#pragma once

#include <cstdint>
#include <string>

#include "presets/Clamped.h"
#include "presets/PresetCollection.h"
#include "presets/clsScatterFilter.h"

namespace tarnview {

/// A pair of axes, a point style and a set of filters under a name.
class clsScatterGraphPreset {
 public:
  clsScatterFilters objFilters;
  std::int32_t lngPointColour = 0;    ///< 0xBBGGRR, 0 to 0x1000000
  std::int32_t lngPointShape = 0;     ///< 0 to 9
  std::int32_t lngPointSize = 0;      ///< 1 to 10; 0 where never given
  std::int32_t lngYAxisDataItem = 0;  ///< item number (intSeq)
  std::int32_t lngXAxisDataItem = 0;
  std::string strName;
  bool FileOpenDraw = false;  ///< drawn when a log is opened
  LogFamilyId lngLogFamily;

  clsScatterGraphPreset Duplicate() const { return *this; }
};

using clsScatterGraphPresets = PresetCollection<clsScatterGraphPreset>;

}  // namespace tarnview
