#pragma once

#include <string>

#include "model/OpenLog.h"
#include "model/ZoneSettings.h"
#include "zones/clsBenchmark.h"

namespace tarnview {

/// The whole calibration of one ECU: a plain value, copied and compared as such. What MAP files
/// hold, what the editor takes and gives back, what goes to the ECU.
struct ZoneMap {
  ZoneSettings zones{};
  ChipIdentity chip;
  int intAtmosphericPressure = 0;  ///< kPa; 0 for not known
  std::string strNotes;            ///< several lines are parted by CR LF

  friend bool operator==(const ZoneMap&, const ZoneMap&) = default;
};

/// The zone settings of the file that is open.
ZoneMap MapOf(const LoadedZones& loaded);
/// Takes them back; the changes that the ECU made stay as they are.
void SetMap(LoadedZones& loaded, const ZoneMap& map);

/// A benchmark has no notes.
ZoneMap MapOf(const clsBenchmark& benchmark);
/// Its name and file stay.
void SetMap(clsBenchmark& benchmark, const ZoneMap& map);

}  // namespace tarnview
