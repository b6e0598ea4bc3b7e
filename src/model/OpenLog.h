#pragma once

#include <cstdint>
#include <string>

#include "model/SampleStore.h"
#include "model/ZoneSettings.h"
#include "model/clsLogDataItems.h"
#include "model/clsLogTags.h"

namespace tarnview {

/// The lowest air temperature before any was seen, degrees C.
inline constexpr std::int32_t kNoAirTemp = 200;

/// The zone settings of the file that is open, and the changes that the ECU made to them during the
/// run.
struct LoadedZones {
  ZoneSettings zones{};
  ZoneSettings changes{};   ///< column 0, "Lambda/Knock Zone Changes"
  ZoneSettings original{};  ///< column 1, "Original Zone Settings"
  ChipIdentity chip;
  int intAtmosphericPressure = 0;  ///< kPa; 0 for not known
  std::string strNotes;            ///< of a MAP file alone; lines end with CR LF
  bool gblnZoneLayout6 =
      false;  ///< six rows of about 13 kPa (normally aspirated), not rows of 40 kPa
};

/// The one log that is open: its samples, its zone settings, where it came from.
struct OpenLog {
  SampleStore glngDataLog;
  const clsLogDataItems* gcolDataItems = nullptr;  ///< the items of the columns

  std::int32_t glngFirstSample = 0;      ///< store index
  std::int32_t glngLastSample = 0;       ///< store index
  std::int32_t glngFirstSampleTime = 0;  ///< `Sample` value
  std::int32_t glngLastSampleTime = 0;   ///< `Sample` value
  std::int32_t glngFirstPlotSample =
      -1;  ///< store index of the first sample as warm as the setting; -1 for none
  std::int32_t glngLowestAirTemp = kNoAirTemp;

  std::string gstrCurrentFile;
  std::string gstrCurrentFileTitle;
  int gintCurrentFileType = 0;
  bool gblnSamplesLoaded = false;
  bool gblnZonesLoaded = false;
  bool gblnChangesLoaded = false;
  bool gblnZonesDirty = false;
  bool blnTooLong = false;  ///< the file holds more lines than were taken (kMostSamples)

  LoadedZones zones;
  clsLogTags gcolLogTags;

  /// Drops the log for the next one, as every loader's first step.
  void Clear(const clsLogDataItems& items, int expectedRows);

  std::int32_t Sample(int index) const { return glngDataLog(0, index); }
  /// The text of an item's cell; the item by number.
  std::string FormatDataItem(int seq, int index) const;
};

}  // namespace tarnview
