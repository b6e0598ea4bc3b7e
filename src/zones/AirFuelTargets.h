#pragma once

#include <array>
#include <string_view>

#include "model/ConversionTables.h"
#include "model/ZoneSettings.h"

namespace tarnview {

/// The six air/fuel targets z26 to z31 as ratios, each for one row of the zone grids.
struct AFTargets {
  std::array<double, 6> targets{};  ///< thousandths, 1000 to 40000
  std::string_view O2Sensor;        ///< "NB", "WB" or "NB+WB"
  std::string_view autoTuneType;
};

/// `voltageFactor` is the factor of the data item "Aux NF": stored units per volt.
AFTargets CalcAFTargets(const ZoneSettings& zones, const ChipIdentity& chip,
                        const ConversionTables& tables, double voltageFactor);

/// A wide band target, 0 to 127, as the sensor's voltage in stored units: 128 steps are 5 V.
double ConvertWBO2TargetToVoltage(double target, double voltageFactor);

}  // namespace tarnview
