#include "zones/BenchmarkCopy.h"

#include <algorithm>

#include "zones/AutoTune.h"
#include "zones/ZoneEdits.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneGrid.h"

namespace tarnview {
namespace {

using Chip = ChipIdentity;

/// Whether a setting means the same on the chips of both sides.
using OnBoth = bool (*)(const Chip& source, const Chip& form);

bool BothFrom(Date first, const Chip& a, const Chip& b) {
  return a.datChipDate >= first && b.datChipDate >= first;
}
bool BothAre(int version, const Chip& a, const Chip& b) {
  return a.intChipVersion == version && b.intChipVersion == version;
}
bool BothThird(const Chip& a, const Chip& b) { return BothAre(3, a, b); }
bool ThirdOrNew(const Chip& a, const Chip& b) {
  return BothThird(a, b) || BothFrom(MakeDate(2003, 6, 9), a, b);
}
bool PrimeDelay(const Chip& a, const Chip& b) {
  if (BothAre(1, a, b)) return BothFrom(MakeDate(2003, 6, 9), a, b);
  if (BothAre(2, a, b))
    return a.dblEngineSize == 1.8 && b.dblEngineSize == 1.8 &&
           BothFrom(MakeDate(2003, 1, 25), a, b);
  return BothThird(a, b);
}

struct ZoneRow {
  CopyBox box;
  int zone;
  OnBoth when = nullptr;  ///< empty: always
};

using enum CopyBox;
constexpr ZoneRow kZones[] = {
    {Start, 6},
    {Start, 226},
    {Start, 16},
    {Start, 17},
    {Start, 227},
    {Start, 247, PrimeDelay},
    {Idle, 8},
    {Idle, 18},
    {Idle, 19},
    {Idle, 20},
    {Idle, 251},
    {Wastegate, 12},
    {Wastegate, 14},
    {Wastegate, 15},
    {Wastegate, 112},
    {Wastegate, 113},
    {Wastegate, 208},
    {Wastegate, 209},
    {Wastegate, 248},
    {Wastegate, 249},
    {Wastegate, 3},
    {AirTemp, 252},
    {AirTemp, 253},
    {AirTemp, 254},
    {AirTemp, 255},
    {Miscellaneous, 7},
    {Miscellaneous, 9},
    {Miscellaneous, 228},
    {Miscellaneous, 10},
    {Miscellaneous, 11},
    {Miscellaneous, 2},
    {Miscellaneous, 225},
    {Miscellaneous, 244, ThirdOrNew},
    {Miscellaneous, 224},
    {Miscellaneous, 243, BothThird},
    {Ignition, 13},
    {Ignition, 21},
    {Fuel, 22},
    {Fuel, 23},
    {Fuel, 24},
    {Fuel, 25},
    {Fuel, 1},
    {Fuel, 250},
    {Fuel, 0},
    {Fuel, 245, BothThird},
    {Fuel, 246, ThirdOrNew},
};

/// Ticks are copied in this order: the EGR curve needs EGR.
struct TickRow {
  CopyBox box;
  Tick tick;
  bool onBoth;  ///< only where both chips have the box
};
constexpr TickRow kTickRows[] = {
    {Idle, Tick::TPSIdleSwitch, true},         {Idle, Tick::IdleStabilise, true},
    {Wastegate, Tick::TargetControl, false},   {Wastegate, Tick::IATTarget, true},
    {Miscellaneous, Tick::Security, false},    {Miscellaneous, Tick::EGR, false},
    {Miscellaneous, Tick::AltEGRCurve, false}, {Ignition, Tick::KnockLight, true},
    {Fuel, Tick::QuadInjection, true},
};

struct Caption {
  CopyBox box;
  std::string_view text;
};
constexpr Caption kCaptions[] = {
    {Everything, "Everything"},
    {Start, "Start"},
    {Idle, "Idle"},
    {Wastegate, "Wastegate"},
    {AirTemp, "Air Temp. Correction"},
    {BoostTargets, "Boost Targets"},
    {AutoTuning, "Auto Tuning"},
    {Miscellaneous, "Miscellaneous"},
    {Ignition, "Ignition"},
    {Fuel, "Fuel"},
    {FuelZones, "Fuel Zones"},
    {IgnitionZones, "Ignition Zones"},
    {General, "General Information"},
};

/// One copying: a step for each kind of thing.
class Copy {
 public:
  Copy(ZoneSheet sheet, const ZoneMap& source, const CopyBoxes& boxes)
      : result_{std::move(sheet), {}}, source_(source), boxes_(boxes) {
    if (Sheet().normallyAspirated)
      for (const CopyBox box : {Wastegate, BoostTargets})
        boxes_[static_cast<std::size_t>(box)] = false;
  }

  CopiedSheet Run() {
    if (Wants(General)) CopyChip();
    CopyFields();
    if (Wants(AirTemp)) CopyIntakeLimit();
    CopyTicks();
    if (Wants(BoostTargets)) CopyBoostTargets();
    if (Wants(FuelZones)) CopyGrid(ZoneGrid::Fuel);
    if (Wants(IgnitionZones)) CopyGrid(ZoneGrid::Ignition);
    if (Wants(AutoTuning)) CopyAutoTuning();
    Sheet() = WithChipRules(std::move(Sheet()));
    return std::move(result_);
  }

 private:
  ZoneSheet& Sheet() { return result_.sheet; }
  bool Wants(CopyBox box) const { return boxes_[static_cast<std::size_t>(box)]; }

  void CopyChip() {
    Sheet() = WithEngineSize(std::move(Sheet()), source_.chip.dblEngineSize);
    Sheet() = WithChipDate(std::move(Sheet()), source_.chip.datChipDate);
    Sheet().intAtmosphericPressure = source_.intAtmosphericPressure;
  }

  /// Settings whose range goes by the engine's size.
  static bool SizeMatters(int zone) {
    return zone == zone::kHotRestart || zone == zone::kCoolantLimit;
  }

  /// By the source's rule, so that a number means what it meant there.
  void CopyZone(int zone) {
    const GeneralZone* field = FindGeneralZone(zone, source_.chip);
    int shown = source_.zones[static_cast<std::size_t>(zone)];
    if (field) shown = field->ToShown(shown);
    if (SizeMatters(zone) && source_.chip.dblEngineSize != Sheet().chip.dblEngineSize)
      shown = Forced(Sheet(), zone, shown);
    Sheet().Shown(zone) = shown;
  }

  void CopyFields() {
    for (const ZoneRow& row : kZones)
      if (Wants(row.box) && (!row.when || row.when(source_.chip, Sheet().chip))) CopyZone(row.zone);
  }

  void CopyIntakeLimit() {
    const bool sourceIsNew = source_.chip.datChipDate >= kNewChipDate,
               isNew = Sheet().chip.datChipDate >= kNewChipDate;
    // The box is not available then, so that nobody sees this message: kept on purpose.
    if (sourceIsNew != isNew)
      result_.messages.push_back(Message::AdvanceLimitNotCopied);
    else
      CopyZone(zone::kIntakeLimit);
  }

  bool SourceTick(Tick tick) const {
    if (tick == Tick::EGR)
      return BitIsSet(source_.zones[zone::kFlags],
                      source_.chip.intChipVersion == 3 ? z5::kWideBand : z5::kEGR);
    // Not the knock light's own bit: kept on purpose.
    if (tick == Tick::KnockLight) return BitIsSet(source_.zones[zone::kMoreFlags], z800::kTPSIdle);
    return ReadTick(tick, source_.zones, source_.chip);
  }

  void CopyTicks() {
    for (const TickRow& row : kTickRows) {
      const bool both =
          TickExists(row.tick, source_.chip, true) && TickExists(row.tick, Sheet().chip, true);
      if (Wants(row.box) && (both || !row.onBoth))
        Sheet() = WithTick(std::move(Sheet()), row.tick, SourceTick(row.tick));
    }
  }

  void CopyBoostTargets() {
    for (int zone = zone::kFirstBoostTarget; zone < zone::kMoreFlags; ++zone) CopyZone(zone);
    Sheet().boostTargets = MeanSaysBoostTargets(Sheet());
  }

  /// The four cells of closed loop boost control never come over, whichever chip is in hand.
  void CopyGrid(ZoneGrid grid) {
    const int first = ZoneCell(grid, 0, 0), end = ZoneCell(grid, kGridRows, 0);
    for (int zone = first; zone < end; ++zone)
      if (!IsClosedLoopCell(zone))
        Sheet().Shown(zone) = source_.zones[static_cast<std::size_t>(zone)];
  }

  void CopyAutoTuning() {
    const Chip& chip = source_.chip;
    const auto type = RetrieveAutoTuneType(chip.dblEngineSize, chip.datChipDate,
                                           chip.intChipVersion, source_.zones);
    const auto types = AutoTuneTypes(Sheet().chip);
    if (std::find(types.begin(), types.end(), type) != types.end())
      Sheet() = WithAutoTuneType(std::move(Sheet()), type);
    // EGR and wide band exclude each other, so that the sensor comes with its EGR; it is EGR's own
    // bit here, whatever "Miscellaneous" took for it.
    for (const Tick tick : {Tick::EGR, Tick::MixtureFuel})
      Sheet() = WithTick(std::move(Sheet()), tick, ReadTick(tick, source_.zones, chip));
    Sheet() = WithSensor(std::move(Sheet()), SensorText(source_));
    for (int row = 0; row < kGridRows; ++row) CopyZone(zone::kFirstTarget + row);
  }

  CopiedSheet result_;
  const ZoneMap& source_;
  CopyBoxes boxes_;
};

}  // namespace

std::string_view CopyBoxCaption(int box) {
  for (const Caption& caption : kCaptions)
    if (static_cast<int>(caption.box) == box) return caption.text;
  return "";
}

bool CopyBoxAvailable(CopyBox box, Date sourceDate, Date formDate, bool normallyAspirated) {
  if (box == AirTemp) return sourceDate > kNewChipDate && formDate > kNewChipDate;
  return !normallyAspirated || (box != Wastegate && box != BoostTargets);
}

CopiedSheet CopyFromBenchmark(ZoneSheet sheet, const ZoneMap& source, const CopyBoxes& boxes) {
  return Copy(std::move(sheet), source, boxes).Run();
}

}  // namespace tarnview
