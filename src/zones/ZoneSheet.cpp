#include "zones/ZoneSheet.h"

#include <algorithm>

#include "zones/AutoTune.h"
#include "zones/ChipRules.h"
#include "zones/ZoneEdits.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneGrid.h"

namespace tarnview {
namespace {

constexpr std::string_view kFuelRange = "000/255", kIgnitionRange = "000/239";
const Date kFirstSensorDate = MakeDate(2002, 6, 10);  ///< before it, bit 4 of z5 is " M. Fuel"

std::int16_t Raw(const GeneralZone* field, int shown) {
  if (field) shown = field->ToRaw(shown);
  return static_cast<std::int16_t>(shown);
}

/// z5, but for its auto tune type, from nothing: what no box stands for is lost.
int Flags(const ZoneSheet& sheet, int source, Date chipDate) {
  int flags = SetMAPID(0, sheet.MAPID);
  const bool sensor = chipDate >= kFirstSensorDate;
  const bool both = sensor && sheet.O2Sensor == "NB+WB";
  const bool wideBand = sensor ? sheet.O2Sensor == "WB" : sheet.Ticked(Tick::MixtureFuel);
  const bool EGR = sheet.Ticked(Tick::EGR) && !(sensor && wideBand);
  flags = SetBit(flags, z5::kWideBand, both || wideBand);
  flags = SetBit(flags, z5::kEGR, both || EGR);
  flags = SetBit(flags, z5::kTargetControl, sheet.Ticked(Tick::TargetControl));
  bool byChip = BitIsSet(source, z5::kByChip);
  if (TickExists(sheet, Tick::QuadInjection)) byChip = sheet.Ticked(Tick::QuadInjection);
  if (TickExists(sheet, Tick::IdleStabilise)) byChip = sheet.Ticked(Tick::IdleStabilise);
  return SetBit(flags, z5::kByChip, byChip);
}

/// z800: a box that the chip lacks leaves its bit.
int MoreFlags(const ZoneSheet& sheet, int source) {
  int flags = source;
  const auto write = [&](Tick tick, int bit, bool inverted) {
    if (TickExists(sheet, tick)) flags = SetBit(flags, bit, sheet.Ticked(tick) != inverted);
  };
  write(Tick::Security, z800::kSecurity, false);
  write(Tick::KnockLight, KnockLightBit(sheet.chip.intChipVersion), true);
  write(Tick::IATTarget, z800::kKnockLightOrIATTarget, true);
  return flags;
}

void WriteFlags(const ZoneSheet& sheet, const ZoneMap& source, ZoneMap& map) {
  int flags = Flags(sheet, source.zones[zone::kFlags], map.chip.datChipDate);
  int more = MoreFlags(sheet, source.zones[zone::kMoreFlags]);
  SetAutoTuneType(sheet.autoTuneType, map.chip, flags, more);
  map.zones[zone::kFlags] = static_cast<std::int16_t>(flags);
  map.zones[zone::kMoreFlags] = static_cast<std::int16_t>(more);
  if (TickExists(sheet, Tick::TPSIdleSwitch))
    SetTPSIdleValue(map.zones, map.chip.intChipVersion, sheet.Ticked(Tick::TPSIdleSwitch));
  map.zones[zone::kMoreFlags] = static_cast<std::int16_t>(SavedZ800(map.zones[zone::kMoreFlags]));

  int EGR = source.zones[zone::kEGRFlags];
  if (TickExists(sheet, Tick::AltEGRCurve)) EGR = SetBit(EGR, 0, sheet.Ticked(Tick::AltEGRCurve));
  map.zones[zone::kEGRFlags] = static_cast<std::int16_t>(EGR);
  map.zones[zone::kUnnamed] = source.zones[zone::kUnnamed];
}

std::string_view RangeOf(const ZoneSheet& sheet, int zone) {
  if (zone >= zone::kFirstBoostTarget && zone < zone::kMoreFlags)
    return sheet.boostTargets ? kBoostTargetRange : kBoostTargetRangePct;
  const bool field = !sheet.normallyAspirated || !IsClosedLoopCell(zone);
  const GeneralZone* row = nullptr;
  if (field) row = FindGeneralZone(zone, sheet.chip);
  if (row) return row->range;
  if (zone >= kFirstGridZone && zone < ZoneCell(ZoneGrid::Ignition, 0, 0)) return kFuelRange;
  if (zone < ZoneCell(ZoneGrid::Ignition, kGridRows, 0)) return kIgnitionRange;
  return "";
}

}  // namespace

ZoneSheet OpenSheet(const ZoneMap& map) {
  ZoneSheet sheet;
  const auto fields = GeneralZonesOf(map.chip);
  for (std::size_t zone = 0; zone < map.zones.size(); ++zone) {
    sheet.shown[zone] = map.zones[zone];
    if (fields[zone]) sheet.shown[zone] = fields[zone]->ToShown(map.zones[zone]);
  }
  sheet.chip = map.chip;
  sheet.intAtmosphericPressure = map.intAtmosphericPressure;
  sheet.strNotes = map.strNotes;
  sheet.MAPID = MAPIDText(map.zones[zone::kFlags]);
  sheet.normallyAspirated = IsNormallyAspirated(map.zones[zone::kFlags]);
  sheet.boostTargets = MeanSaysBoostTargets(sheet);
  for (int tick = 0; tick < kTicks; ++tick)
    sheet.ticks[static_cast<std::size_t>(tick)] = ReadTick(Tick{tick}, map.zones, map.chip);
  sheet.autoTuneType = RetrieveAutoTuneType(map.chip.dblEngineSize, map.chip.datChipDate,
                                            map.chip.intChipVersion, map.zones);
  return WithSensor(WithChipRules(std::move(sheet)), SensorText(map));
}

ZoneMap Rebuild(const ZoneSheet& sheet, const ZoneMap& source, const ChipIdentity& chip) {
  ZoneMap map;
  map.chip = chip;
  map.intAtmosphericPressure = sheet.intAtmosphericPressure;
  map.strNotes = sheet.strNotes;
  const auto fields = GeneralZonesOf(chip);
  for (std::size_t zone = 0; zone < map.zones.size(); ++zone)
    map.zones[zone] = Raw(fields[zone], sheet.shown[zone]);
  WriteFlags(sheet, source, map);
  return map;
}

bool FieldExists(const ZoneSheet& sheet, int zone) {
  const GeneralZone* field = FindGeneralZone(zone, sheet.chip);
  if (!field || (field->boost && sheet.normallyAspirated)) return false;
  return !field->rule || ChipAllows(*field->rule, sheet.chip);
}

bool TickExists(const ZoneSheet& sheet, Tick tick) {
  if (tick == Tick::AltEGRCurve && !sheet.Ticked(Tick::EGR)) return false;
  return TickExists(tick, sheet.chip, !sheet.normallyAspirated);
}

std::string RangeText(const ZoneSheet& sheet, int zone) {
  if (zone == zone::kPrimeFactor && sheet.chip.intChipVersion == 2)
    return PrimeFactorRange(sheet.Shown(zone::kMasterFuel));
  return std::string(RangeOf(sheet, zone));
}

ZoneRange FieldRange(const ZoneSheet& sheet, int zone) {
  return ParseZoneRange(RangeText(sheet, zone));
}

int Forced(const ZoneSheet& sheet, int zone, int shown) {
  const GeneralZone* field = FindGeneralZone(zone, sheet.chip);
  const ZoneRange range = FieldRange(sheet, zone);
  if (field) return field->Force(shown, range);
  return std::clamp(shown, range.low, range.high);
}

std::string FieldText(const ZoneSheet& sheet, int zone) {
  const GeneralZone* field = FindGeneralZone(zone, sheet.chip);
  if (field) return field->Text(sheet.Shown(zone));
  return std::to_string(sheet.Shown(zone));
}

std::string_view FieldLabel(const ZoneSheet& sheet, int zone) {
  const GeneralZone* field = FindGeneralZone(zone, sheet.chip);
  if (field) return field->label;
  return "";
}

}  // namespace tarnview
