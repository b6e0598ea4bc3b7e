#pragma once

#include <cstdint>
#include <string>

#include "model/clsLogDataItems.h"
#include "presets/clsSampleGraphPreset.h"
#include "presets/clsScatterGraphPreset.h"
#include "universal/clsDataLogColumns.h"

namespace tarnview {

/// A Universal Data Log Definition: how to read a delimited text log of any logger.
class clsDataLog {
 public:
  clsDataLogColumns objColumns;
  double dblLineFrequency = 0;  ///< lines per second; 0: the log has a time column of its own
  std::int32_t lngDelimiterAsciiCharacter = 0;
  std::int32_t lngDataLinesBefore = 0;           ///< lines ahead of the first data line
  std::int32_t lngColumnHeadersLinesBefore = 0;  ///< lines ahead of the column titles
  std::string strFileIDText;                     ///< by which a log is known; empty: any text is one
  std::int32_t lngFileIDTextColumnsBefore = 0;   ///< characters ahead of it on its line
  std::int32_t lngFileIDTextLinesBefore = 0;
  std::string strFileExtension;
  std::string strName;
  bool blnIgnoreDuplicateColumns = false;
  clsSampleGraphPresets objPresetSampleGraphs;
  clsScatterGraphPresets objPresetScatterGraphs;
  std::string strVersion;
  std::string strComments;
  double dblAutoGearSpeedFactor = 0;  ///< the log's unit of speed to metres per second; 0: not given
};

/// Whether presets and filters of a definition may use an item: it has a column, or every log has it (`blnMandatory`
/// of the catalogue).
bool IsDataItemInDataLogDefinition(int lngDataItemID, const clsDataLog& objDefinition,
                                   const clsLogDataItems& catalogue);

}  // namespace tarnview
