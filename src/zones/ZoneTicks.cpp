#include "zones/ZoneTicks.h"

#include "zones/AutoTune.h"
#include "zones/ChipRules.h"
#include "zones/ZoneFlags.h"

namespace tarnview {
namespace {

struct Row {
  std::string_view caption;
  std::string_view otherCaption;  ///< at 1.6, or on Chip Version 1
  bool (*isOther)(const ChipIdentity&);
  bool everyChip;
  ChipRule rule;
  bool boost;
};

bool Is16(const ChipIdentity& chip) { return chip.dblEngineSize != 1.8; }
bool IsFirst(const ChipIdentity& chip) { return chip.intChipVersion == 1; }
bool Never(const ChipIdentity&) { return false; }

/// In the order of Tick.
constexpr Row kRows[kTicks] = {
    {"       EGR Enabled", "MAP/Knock Cntrl", Is16, false, ChipRule::EGRFlag, false},
    {"  Security Enabled", "", Never, false, ChipRule::SecurityAndName, false},
    {"  Quad Inj.", "", Never, false, ChipRule::EnableQuadInjection, false},
    {"  Alt. EGR Curve", "", Never, false, ChipRule::AltEGRCurve, false},
    {"  Knock Light", "", Never, false, ChipRule::KnockLight, false},
    {" TPS Target Cont.", "WOT Target Cont.", Is16, true, {}, true},
    {" IAT Target Cont.", "", Never, false, ChipRule::EnableIATBoostTarget, true},
    {"TPS Idle Sw.", "", Never, false, ChipRule::Enable18TPSOn16, false},
    {" Idle Stabilise", "       1.8 TPS", IsFirst, false, ChipRule::EnableIdleStabilisation, false},
    {" M. Fuel", "", Never, false, ChipRule::MixtureFuelFlag, false},
};

const Row& RowOf(Tick tick) { return kRows[static_cast<std::size_t>(tick)]; }

O2Sensor SensorOf(int flags, const ChipIdentity& chip) {
  return GetO2Sensor(BitIsSet(flags, z5::kEGR), BitIsSet(flags, z5::kWideBand), chip.intChipVersion,
                     chip.datChipDate);
}

}  // namespace

std::string_view TickCaption(Tick tick, const ChipIdentity& chip) {
  const Row& row = RowOf(tick);
  if (row.isOther(chip)) return row.otherCaption;
  return row.caption;
}

bool TickExists(Tick tick, const ChipIdentity& chip, bool boost) {
  const Row& row = RowOf(tick);
  return (boost || !row.boost) && (row.everyChip || ChipAllows(row.rule, chip));
}

bool ReadTick(Tick tick, const ZoneSettings& zones, const ChipIdentity& chip) {
  const int flags = zones[zone::kFlags], more = zones[zone::kMoreFlags];
  switch (tick) {
    case Tick::EGR:
      return SensorOf(flags, chip).EGR;
    case Tick::MixtureFuel:
      return SensorOf(flags, chip).mixtureFuel;
    case Tick::Security:
      return BitIsSet(more, z800::kSecurity);
    case Tick::QuadInjection:
    case Tick::IdleStabilise:
      return BitIsSet(flags, z5::kByChip);
    case Tick::AltEGRCurve:
      return BitIsSet(zones[zone::kEGRFlags], 0);
    case Tick::KnockLight:
      return !BitIsSet(more, KnockLightBit(chip.intChipVersion));
    case Tick::TargetControl:
      return BitIsSet(flags, z5::kTargetControl);
    case Tick::IATTarget:
      return !BitIsSet(more, z800::kKnockLightOrIATTarget);
    case Tick::TPSIdleSwitch:
      return GetTPSIdleValue(zones);
  }
  return false;
}

}  // namespace tarnview
