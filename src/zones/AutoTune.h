#pragma once

#include <string_view>
#include <vector>

#include "model/ZoneSettings.h"

namespace tarnview {

/// "Off", "Lambda", "L3" or "L3+L4": how the ECU tunes its own fuel zones.
std::string_view RetrieveAutoTuneType(double engineSize, Date chipDate, int chipVersion,
                                      const ZoneSettings& zones);

/// What the chip offers, in the order of the list.
std::vector<std::string_view> AutoTuneTypes(const ChipIdentity& chip);
/// Writes a type into z5 and z800; a text that is no type changes nothing.
void SetAutoTuneType(std::string_view type, const ChipIdentity& chip, int& flags, int& moreFlags);

/// The firmware that brought L3 with L4, and the one that lets the user choose between them; 0 for
/// an unknown version.
Date GetL4EnableDate(int chipVersion);
Date GetL4DisableDate(int chipVersion);

/// What bits 3 and 4 of z5 mean on a chip.
struct O2Sensor {
  std::string_view text;  ///< "NB", "WB" or "NB+WB"; empty on old chips, whose callers take "NB"
  bool EGR = false;
  bool mixtureFuel = false;
};
/// The sensors that the chip can tune by. Wide band and EGR exclude each other but on Chip
/// Version 1.
std::vector<std::string_view> O2Sensors(const ChipIdentity& chip, bool EGRInUse,
                                        std::string_view autoTuneType);

O2Sensor GetO2Sensor(bool bit3, bool bit4, int chipVersion, Date chipDate);

}  // namespace tarnview
