#pragma once

#include <string_view>

#include "model/ZoneSettings.h"

namespace tarnview {

/// "Off", "Lambda", "L3" or "L3+L4": how the ECU tunes its own fuel zones.
std::string_view RetrieveAutoTuneType(double engineSize, Date chipDate, int chipVersion, const ZoneSettings& zones);

/// The firmware that brought L3 with L4, and the one that lets the user choose between them; 0 for an unknown version.
Date GetL4EnableDate(int chipVersion);
Date GetL4DisableDate(int chipVersion);

/// What bits 3 and 4 of z5 mean on a chip.
struct O2Sensor {
  std::string_view text;  ///< "NB", "WB" or "NB+WB"; empty on old chips, whose callers take "NB"
  bool EGR = false;
  bool mixtureFuel = false;
};
O2Sensor GetO2Sensor(bool bit3, bool bit4, int chipVersion, Date chipDate);

}  // namespace tarnview
