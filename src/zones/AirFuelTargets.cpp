#include "zones/AirFuelTargets.h"

#include <algorithm>
#include <cmath>

#include "zones/AutoTune.h"
#include "zones/ZoneFlags.h"

namespace tarnview {

double ConvertWBO2TargetToVoltage(double target, double voltageFactor) {
  return voltageFactor * (128 - target) / 25.6;
}

AFTargets CalcAFTargets(const ZoneSettings& zones, const ChipIdentity& chip,
                        const ConversionTables& tables, double voltageFactor) {
  const int flags = zones[zone::kFlags];
  AFTargets result;
  result.O2Sensor = GetO2Sensor(BitIsSet(flags, z5::kEGR), BitIsSet(flags, z5::kWideBand),
                                chip.intChipVersion, chip.datChipDate)
                        .text;
  if (result.O2Sensor.empty()) result.O2Sensor = "NB";
  result.autoTuneType =
      RetrieveAutoTuneType(chip.dblEngineSize, chip.datChipDate, chip.intChipVersion, zones);

  const auto narrowBand = [&](int target) { return TableLookup(target, tables.O2, true, false); };
  const auto wideBand = [&](int target) {
    const double voltage = std::trunc(ConvertWBO2TargetToVoltage(target, voltageFactor));
    return TableLookup(static_cast<std::int32_t>(voltage), tables.Aux, true, false);
  };
  for (std::size_t row = 0; row < result.targets.size(); ++row) {
    const int target = zones[zone::kFirstTarget + row];
    const bool narrow = result.O2Sensor == "NB" || (result.O2Sensor == "NB+WB" && row == 0);
    result.targets[row] = std::clamp(narrow ? narrowBand(target) : wideBand(target), 1000, 40000);
  }
  return result;
}

}  // namespace tarnview
