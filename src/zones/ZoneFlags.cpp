#include "zones/ZoneFlags.h"

#include "zones/ChipRules.h"

namespace tarnview {
namespace {

struct MAPID {
  std::string_view text;
  bool turbo, second;
};
constexpr MAPID kMAPIDs[] = {{"NA1", false, false}, {"T1", true, false}, {"NA2", false, true}, {"T2", true, true}};

using When = bool (*)(const ChipIdentity&);

bool Always(const ChipIdentity&) { return true; }
bool Is18(const ChipIdentity& chip) { return chip.dblEngineSize == 1.8; }
bool Is16(const ChipIdentity& chip) { return !Is18(chip); }
bool Version1(const ChipIdentity& chip) { return chip.intChipVersion == 1; }
bool MixtureFlag(const ChipIdentity& chip) { return ChipAllows(ChipRule::MixtureFuelFlag, chip); }
bool QuadInjection(const ChipIdentity& chip) { return ChipAllows(ChipRule::EnableQuadInjection, chip); }
bool Version2Or3(const ChipIdentity& chip) { return !Version1(chip); }
bool IATTarget(const ChipIdentity& chip) { return ChipAllows(ChipRule::EnableIATBoostTarget, chip); }

struct Flag {
  int zone, bit;
  std::string_view label;
  bool inverted;
  When when;
};

/// The first row that fits counts.
constexpr Flag kFlags[] = {
    {zone::kFlags, z5::kTargetControl, " TPS Target Cont.", false, Is18},
    {zone::kFlags, z5::kTargetControl, "WOT Target Cont.", false, Is16},
    {zone::kFlags, z5::kEGR, "       EGR Enabled", false, Is18},
    {zone::kFlags, z5::kEGR, "MAP/Knock Cntrl", false, Is16},
    {zone::kFlags, z5::kWideBand, " M. Fuel", false, MixtureFlag},
    {zone::kFlags, z5::kByChip, "       1.8 TPS", false, Version1},
    {zone::kFlags, z5::kByChip, "  Quad Inj.", false, QuadInjection},
    {zone::kFlags, z5::kByChip, " Idle Stabilise", false, Version2Or3},
    {zone::kMoreFlags, z800::kSecurity, "  Security Enabled", false, Always},
    {zone::kMoreFlags, z800::kTPSIdle, "TPS Idle Sw.", false, Always},
    {zone::kMoreFlags, z800::kKnockLightOrIATTarget, "  Knock Light", true, Version1},
    {zone::kMoreFlags, z800::kKnockLightOrIATTarget, " IAT Target Cont.", true, IATTarget},
    {zone::kMoreFlags, z800::kKnockLight, "  Knock Light", true, Version2Or3},
    {zone::kEGRFlags, 0, "  Alt. EGR Curve", false, Always},
};

const Flag* Find(int zone, int bit, const ChipIdentity& chip) {
  for (const Flag& flag : kFlags)
    if (flag.zone == zone && flag.bit == bit && flag.when(chip)) return &flag;
  return nullptr;
}

}  // namespace

std::string_view MAPIDText(int flags) {
  for (const MAPID& id : kMAPIDs)
    if (id.turbo == BitIsSet(flags, z5::kTurboMAP) && id.second == BitIsSet(flags, z5::kSecondMAP)) return id.text;
  return "";
}

int SetMAPID(int flags, std::string_view text) {
  for (const MAPID& id : kMAPIDs)
    if (id.text == text) return SetBit(SetBit(flags, z5::kTurboMAP, id.turbo), z5::kSecondMAP, id.second);
  return flags;
}

bool GetTPSIdleValue(const ZoneSettings& zones) { return BitIsSet(zones[zone::kMoreFlags], z800::kTPSIdle); }

void SetTPSIdleValue(ZoneSettings& zones, int chipVersion, bool on) {
  const bool first = chipVersion == 1;
  auto& flags = zones[first ? zone::kFlags : zone::kMoreFlags];
  flags = static_cast<std::int16_t>(SetBit(flags, first ? z5::kByChip : z800::kTPSIdle, on));
}

std::string_view FlagLabel(int zone, int bit, const ChipIdentity& chip) {
  const Flag* flag = Find(zone, bit, chip);
  return flag ? flag->label : "";
}

bool FlagIsInverted(int zone, int bit, const ChipIdentity& chip) {
  const Flag* flag = Find(zone, bit, chip);
  return flag && flag->inverted;
}

}  // namespace tarnview
