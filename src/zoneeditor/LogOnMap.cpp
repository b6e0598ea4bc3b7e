#include "zoneeditor/LogOnMap.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Column.h"
#include "model/LocateSample.h"
#include "zones/RowsAround.h"
#include "zones/ZoneEdits.h"

namespace tarnview {
namespace {

/// Stored MAPs of which the row is kept: 0 to 409.5 kPa.
constexpr std::size_t kKeptMAPs = 4096;

double RowOf(double kPa, bool sixRows) {
  const RowsAround rows = RowsAroundMAP(kPa, sixRows);
  return std::clamp<double>(static_cast<double>(rows.lower) + rows.up, 1, kGridRows);
}

/// A column is headed by the lower end of its speeds: its middle lies half a column further on.
double ColumnOf(std::int32_t RPM) {
  return std::clamp<double>(static_cast<double>(RPM) / kRPMPerColumn + 0.5, 1, kGridColumns);
}

/// Half way, the higher one.
int Nearest(double place) { return static_cast<int>(std::floor(place + 0.5)); }

/// Rows of stored MAPs, each worked out once.
class Rows {
 public:
  explicit Rows(const OpenLog& log)
      : item_(log.gcolDataItems->Item(ItemOf(kMAP))),
        sixRows_(log.zones.gblnZoneLayout6),
        known_(kKeptMAPs, 0) {}

  int operator()(std::int32_t stored) {
    const auto slot = static_cast<std::size_t>(stored);
    if (stored < 0 || slot >= kKeptMAPs) return Nearest(RowOf(item_.GetRawData(stored), sixRows_));
    if (known_[slot] == 0)
      known_[slot] = static_cast<char>(Nearest(RowOf(item_.GetRawData(stored), sixRows_)));
    return known_[slot];
  }

 private:
  const clsLogDataItem& item_;
  const bool sixRows_;
  std::vector<char> known_;
};

/// The ratio that the targets are of. A wide band sensor stands at the auxiliary input, which may
/// measure anything where the ECU tunes by the narrow band one.
std::span<const std::int32_t> AirFuel(const OpenLog& log) {
  const auto wideBand = log.glngDataLog.Column(kAuxCF);
  const bool tunesByIt = SensorText(MapOf(log.zones)) != "NB";
  if (tunesByIt && !wideBand.empty()) return wideBand;
  return log.glngDataLog.Column(kAF);
}

std::int32_t CellOf(std::span<const std::int32_t> column, int index) {
  if (column.empty()) return 0;
  return column[static_cast<std::size_t>(index)];
}

std::string Signed(double value, int places) {
  const std::string text = FixedText(value, places);
  if (value > 0 && text.find_first_of("123456789") != std::string::npos) return "+" + text;
  return text;
}

}  // namespace

std::optional<double> LogOnMap::Value(GridShow show, int row, int column) const {
  const CellFacts& cell = At(row, column);
  const bool error = show == GridShow::Error;
  const int samples = error ? cell.mixtures : cell.samples;
  if (show == GridShow::Nothing || samples < kFewestSamples) return std::nullopt;
  if (error) return cell.MeanError();
  if (show == GridShow::Visits) return cell.samples;
  return cell.highestKnock;
}

std::string LogOnMap::Text(GridShow show, int row, int column) const {
  const auto value = Value(show, row, column);
  if (!value) return "";
  if (show == GridShow::Error) return Signed(*value, 1);
  return std::to_string(static_cast<int>(*value));
}

std::string LogOnMap::ToolTip(int row, int column) const {
  const CellFacts& cell = At(row, column);
  if (cell.samples == 0) return "No samples";
  std::string text = Counted(static_cast<std::size_t>(cell.samples), "sample");
  if (cell.mixtures >= kFewestSamples) text += ", air/fuel " + Signed(cell.MeanError(), 1) + " %";
  if (cell.samples >= kFewestSamples) text += ", knock up to " + std::to_string(cell.highestKnock);
  return text;
}

PlaceOnMap PlaceOf(const OpenLog& log, int index) {
  const double kPa = log.gcolDataItems->Item(ItemOf(kMAP)).GetRawData(log.glngDataLog(kMAP, index));
  return {RowOf(kPa, log.zones.gblnZoneLayout6), ColumnOf(log.glngDataLog(kRPM, index))};
}

DrivenRange RangeOfSamples(const OpenLog& log, std::int64_t from, std::int64_t to) {
  if (log.glngDataLog.Rows() == 0) return {};
  const std::int64_t begin = log.glngFirstSampleTime, end = log.glngLastSampleTime;
  const auto indexOf = [&](std::int64_t sample) {
    const auto wanted = static_cast<std::int32_t>(std::clamp(sample, begin, std::max(begin, end)));
    return LocateSample(log, wanted - log.glngFirstSampleTime, wanted);
  };
  return {indexOf(from), indexOf(to)};
}

LogOnMap ReadLogOnMap(const OpenLog& log, DrivenRange range) {
  LogOnMap drive;
  Rows rows(log);
  const SampleStore& store = log.glngDataLog;
  const auto RPM = store.Column(kRPM), MAP = store.Column(kMAP), knock = store.Column(kKnock);
  const auto airFuel = AirFuel(log), target = store.Column(kAFTgt);
  for (int i = std::max(range.first, 0); i <= std::min(range.last, store.Rows() - 1); ++i) {
    const auto row = static_cast<std::size_t>(rows(CellOf(MAP, i)) - 1);
    const auto column = static_cast<std::size_t>(Nearest(ColumnOf(CellOf(RPM, i))) - 1);
    CellFacts& cell = drive.cells[row][column];
    ++cell.samples;
    cell.highestKnock = std::max(cell.highestKnock, CellOf(knock, i));
    const std::int32_t measured = CellOf(airFuel, i), wanted = CellOf(target, i);
    if (measured <= 0 || wanted <= 0) continue;
    ++cell.mixtures;
    cell.errorSum += 100.0 * (measured - wanted) / wanted;
  }
  return drive;
}

int NextInCell(const OpenLog& log, DrivenRange range, int row, int column, int after) {
  const int first = std::max(range.first, 0);
  const int last = std::min(range.last, log.glngDataLog.Rows() - 1);
  const int count = last - first + 1;
  int start = 0;
  if (after >= first && after <= last) start = after - first + 1;
  for (int i = 0; i < count; ++i) {
    const int index = first + (start + i) % count;
    const PlaceOnMap place = PlaceOf(log, index);
    if (Nearest(place.row) == row && Nearest(place.column) == column) return index;
  }
  return -1;
}

int FuelProposal::Cells() const {
  int cells = 0;
  for (const auto& row : changes)
    cells += kGridColumns - static_cast<int>(std::count(row.begin(), row.end(), 0));
  return cells;
}

FuelProposal Propose(const LogOnMap& drive, const ZoneSheet& sheet) {
  FuelProposal proposal;
  for (int row = 1; row <= kGridRows; ++row)
    for (int column = 1; column <= kGridColumns; ++column) {
      const CellFacts& facts = drive.At(row, column);
      const int zone = ZoneCell(ZoneGrid::Fuel, row - 1, column - 1);
      if (facts.mixtures < FuelProposal::kFewestSamples || IsBlackedOut(sheet, zone)) continue;
      const double error =
          std::clamp(facts.MeanError(), -FuelProposal::kMostPerCent, FuelProposal::kMostPerCent);
      // Truncated, so that rounding never goes beyond the limit of a step.
      const int change = static_cast<int>(sheet.Shown(zone) * error / 100);
      const int after = Forced(sheet, zone, sheet.Shown(zone) + change);
      proposal.changes[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)] =
          after - sheet.Shown(zone);
    }
  return proposal;
}

ZoneSheet WithProposal(const ZoneSheet& sheet, const FuelProposal& proposal) {
  std::vector<int> cells, numbers;
  for (int row = 1; row <= kGridRows; ++row)
    for (int column = 1; column <= kGridColumns; ++column) {
      if (proposal.At(row, column) == 0) continue;
      cells.push_back(ZoneCell(ZoneGrid::Fuel, row - 1, column - 1));
      numbers.push_back(sheet.Shown(cells.back()) + proposal.At(row, column));
    }
  return WithNumbers(sheet, cells, numbers);
}

}  // namespace tarnview
