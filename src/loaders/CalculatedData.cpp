#include "loaders/CalculatedData.h"

#include <cmath>
#include <vector>

#include "base/Numbers.h"
#include "base/Units.h"
#include "loaders/LookupCache.h"
#include "model/Column.h"
#include "zones/AirFuelTargets.h"
#include "zones/ChipRules.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneGrid.h"

namespace tarnview {
namespace {

constexpr std::size_t kStoredVolts = 5000;  ///< an auxiliary input's range: thousandths of a volt

/// What follows from a sample's MAP alone. A log has few different ones, so each is worked out
/// once.
struct MAPFacts {
  bool known = false;
  int zoneRow = 0;
  std::int32_t boost = 0, vacuum = 0;
  std::int32_t targetBelow2001RPM = 0, target = 0;
};

class Pass {
 public:
  Pass(OpenLog& log, const ConversionTables& tables)
      : store_(log.glngDataLog),
        zones_(log.zones.zones),
        tables_(tables),
        newChip_(log.zones.chip.datChipDate >= kNewChipDate),
        normallyAspirated_(IsNormallyAspirated(zones_[zone::kFlags])),
        atmosphere_(log.zones.intAtmosphericPressure * 10),
        targets_(CalcAFTargets(zones_, log.zones.chip, tables,
                               log.gcolDataItems->Item(ItemOf(kAuxNF)).Factor())),
        facts_(kMAPs) {}

  void MAPAndZoneColumns();
  void KnockThreshold();
  void AirTempRetard();
  void ConvertedAux(Column native, Column converted);

 private:
  static constexpr std::size_t kMAPs = 4096;  ///< stored MAPs whose facts are kept: 0 to 409.5 kPa

  MAPFacts Work(std::int32_t MAP) const;
  const MAPFacts& FactsOf(std::int32_t MAP);
  std::int32_t Target(std::int32_t MAP, std::int32_t RPM) const;

  SampleStore& store_;
  const ZoneSettings& zones_;
  const ConversionTables& tables_;
  const bool newChip_;
  const bool normallyAspirated_;
  const std::int32_t atmosphere_;  ///< tenths of kPa
  const AFTargets targets_;
  std::vector<MAPFacts> facts_;
  MAPFacts other_;
};

std::int32_t Pass::Target(std::int32_t MAP, std::int32_t RPM) const {
  const ZoneRows rows =
      CalcZoneRowBoundaries(MAP, normallyAspirated_, targets_.O2Sensor, targets_.autoTuneType, RPM);
  const auto target = [this](int row) {
    return targets_.targets[static_cast<std::size_t>(row - 1)];
  };
  return RoundToLong(LinearInterpolate(rows.lowerMAP, rows.upperMAP, MAP, target(rows.lower),
                                       target(rows.upper), /*clamp=*/true));
}

MAPFacts Pass::Work(std::int32_t MAP) const {
  MAPFacts facts;
  facts.known = true;
  facts.zoneRow = ZoneRowOfSample(normallyAspirated_, RoundToLong(MAP / 10.0));
  const double above = static_cast<double>(MAP) - atmosphere_;
  if (above > 0)
    facts.boost = RoundToLong(above * kPsiPerKPa);
  else
    facts.vacuum = RoundToLong(-above * kInHgPerKPa);
  facts.targetBelow2001RPM = Target(MAP, 2000);
  facts.target = Target(MAP, 2001);
  return facts;
}

const MAPFacts& Pass::FactsOf(std::int32_t MAP) {
  const auto slot = static_cast<std::size_t>(MAP);
  if (MAP < 0 || slot >= facts_.size()) return other_ = Work(MAP);
  if (!facts_[slot].known) facts_[slot] = Work(MAP);
  return facts_[slot];
}

void Pass::MAPAndZoneColumns() {
  for (int i = 0; i < store_.Rows(); ++i) {
    const std::int32_t RPM = store_(kRPM, i);
    const MAPFacts& facts = FactsOf(store_(kMAP, i));
    const int row = facts.zoneRow - 1, column = ZoneColumnOfSample(RPM);
    store_.Set(kZone, i, ZoneNumber(facts.zoneRow, RPM));
    store_.Set(kBoost, i, facts.boost);
    store_.Set(kVacuum, i, facts.vacuum);
    store_.Set(kFuelZV, i, zones_[static_cast<std::size_t>(ZoneCell(ZoneGrid::Fuel, row, column))]);
    store_.Set(kIgnZV, i,
               zones_[static_cast<std::size_t>(ZoneCell(ZoneGrid::Ignition, row, column))]);
    store_.Set(kAFTgt, i, RPM < 2001 ? facts.targetBelow2001RPM : facts.target);
  }
}

void Pass::KnockThreshold() {
  const int threshold = zones_[zone::kKnockThreshold];
  const double start = newChip_ ? std::trunc(7500 - threshold * 62.5) : 10000;
  for (int i = 0; i < store_.Rows(); ++i) {
    const std::int32_t RPM = store_(kRPM, i);
    store_.Set(kKnockT, i,
               RPM <= start ? threshold : RoundToLong((RPM - start) * 0.016 + threshold));
  }
}

void Pass::AirTempRetard() {
  const int ignitionStart = zones_[zone::kIgnitionStart];
  const std::int32_t start =
      newChip_ && ignitionStart >= 1 ? ignitionStart * 10 : 9999;  // tenths of a degree C
  const double slope = zones_[zone::kIgnitionSlope] / 256.0;
  for (int i = 0; i < store_.Rows(); ++i) {
    const std::int32_t temperature = store_(kATemp, i);
    if (temperature > start)
      store_.Set(kATR, i,
                 RoundToLong((static_cast<double>(temperature) - start) / 10 * slope * 10));
  }
}

void Pass::ConvertedAux(Column native, Column converted) {
  LookupCache lookup(tables_.Aux, kStoredVolts + 1);
  const auto inputs = store_.Column(native);
  for (int i = 0; i < static_cast<int>(inputs.size()); ++i) {
    const std::int32_t input = inputs[static_cast<std::size_t>(i)];
    if (input != 0) store_.Set(converted, i, lookup(input));
  }
}

}  // namespace

void GenerateCalculatedData(OpenLog& log, const ConversionTables& tables) {
  Pass pass(log, tables);
  pass.MAPAndZoneColumns();
  pass.KnockThreshold();
  pass.AirTempRetard();
  pass.ConvertedAux(kAuxNS, kAuxCS);
  pass.ConvertedAux(kAuxNF, kAuxCF);
}

}  // namespace tarnview
