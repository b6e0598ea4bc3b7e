#pragma once

#include <string_view>

#include "model/ZoneSettings.h"

namespace tarnview {

/// The settings of a map that are a tick box.
enum class Tick : int {
  EGR,            ///< "MAP/Knock Cntrl" at 1.6
  Security,       ///< set on the ECU
  QuadInjection,  ///< shares its bit with IdleStabilise
  AltEGRCurve,    ///< exists only while EGR is ticked, too
  KnockLight,
  TargetControl,
  IATTarget,
  TPSIdleSwitch,
  IdleStabilise,  ///< "1.8 TPS" on Chip Version 1
  MixtureFuel,    ///< in the O2 sensor's place on old chips
};
inline constexpr int kTicks = 10;

std::string_view TickCaption(Tick tick, const ChipIdentity& chip);
/// Whether the chip has it; `boost`: its boost section is available.
bool TickExists(Tick tick, const ChipIdentity& chip, bool boost);

/// What the bits say, whether the chip has it or not.
bool ReadTick(Tick tick, const ZoneSettings& zones, const ChipIdentity& chip);

}  // namespace tarnview
