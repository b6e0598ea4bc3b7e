#include "zones/ZoneEdits.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/Numbers.h"
#include "base/Text.h"
#include "zones/AutoTune.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneGrid.h"

namespace tarnview {
namespace {

constexpr int kBoostTargets =
    zone::kMoreFlags - zone::kFirstBoostTarget;  ///< 11, one for each 500 RPM
constexpr int kLeastMeanOfTargets = 100;         ///< kPa

template <class Value>
void ForEachCell(ZoneSheet& sheet, std::span<const int> cells, Value&& value) {
  for (std::size_t i = 0; i < cells.size(); ++i)
    if (!IsBlackedOut(sheet, cells[i])) sheet.Shown(cells[i]) = Forced(sheet, cells[i], value(i));
}

bool SameRange(const GeneralZone& a, const GeneralZone& b) {
  return a.range == b.range && a.step == b.step;
}

/// The text, or the first of the list, unless some other text is chosen that has gone.
std::string ChosenType(const std::string& chosen, const std::vector<std::string_view>& types) {
  if (chosen.empty()) return std::string(types.front());
  const bool there = std::find(types.begin(), types.end(), chosen) != types.end();
  if (there) return chosen;
  return "";
}

/// The sensor lists begin alike, so that a place on a longer one, held to a shorter, is this.
std::string ChosenSensor(const std::string& chosen, const std::vector<std::string_view>& sensors) {
  if (std::find(sensors.begin(), sensors.end(), chosen) != sensors.end()) return chosen;
  if (chosen == "NB+WB") return std::string(sensors.back());
  return std::string(sensors.front());
}

ZoneSheet WithSensorRules(ZoneSheet sheet) {
  sheet.O2Sensor = ChosenSensor(sheet.O2Sensor, O2SensorsOf(sheet));
  if (!TickExists(sheet, Tick::AltEGRCurve)) sheet.Ticked(Tick::AltEGRCurve) = false;
  return sheet;
}

}  // namespace

bool IsClosedLoopCell(int zone) {
  for (const ZoneGrid grid : {ZoneGrid::Fuel, ZoneGrid::Ignition}) {
    const int first = ZoneCell(grid, kGridRows - 1, 0);
    if (zone == first || zone == first + 1) return true;
  }
  return false;
}

bool IsBlackedOut(const ZoneSheet& sheet, int zone) {
  return !sheet.normallyAspirated && IsClosedLoopCell(zone);
}

ZoneSheet WithField(ZoneSheet sheet, int zone, std::string_view text) {
  const GeneralZone* field = FindGeneralZone(zone, sheet.chip);
  const bool off = field && field->offAt255 && SameIgnoringCase(Trim(text), kOffText);
  if (off)
    sheet.Shown(zone) = kOffValue;
  else
    sheet.Shown(zone) = Forced(sheet, zone, StringToLong(text));
  return sheet;
}

ZoneSheet WithTrim(ZoneSheet sheet, std::string_view degrees) {
  sheet.Shown(zone::kTrim) = TrimQuarters(degrees);
  return sheet;
}

ZoneSheet WithEngineSize(ZoneSheet sheet, double size) {
  const auto before = GeneralZonesOf(sheet.chip);
  sheet.chip.dblEngineSize = size;
  const auto after = GeneralZonesOf(sheet.chip);
  for (std::size_t zone = 0; zone < after.size(); ++zone)
    if (after[zone] && !SameRange(*after[zone], *before[zone]))
      sheet.shown[zone] = after[zone]->Force(sheet.shown[zone]);
  return WithChipRules(std::move(sheet));
}

ZoneSheet WithChipDate(ZoneSheet sheet, Date date) {
  sheet.chip.datChipDate = date;
  return WithChipRules(std::move(sheet));
}

ZoneSheet WithTick(ZoneSheet sheet, Tick tick, bool on) {
  sheet.Ticked(tick) = on && TickExists(sheet, tick);
  if (tick == Tick::EGR) return WithSensorRules(std::move(sheet));
  return sheet;
}

ZoneSheet WithAutoTuneType(ZoneSheet sheet, std::string_view type) {
  sheet.autoTuneType = type;
  return WithSensorRules(std::move(sheet));
}

ZoneSheet WithSensor(ZoneSheet sheet, std::string_view sensor) {
  const auto sensors = O2SensorsOf(sheet);
  const auto found = std::find(sensors.begin(), sensors.end(), sensor);
  if (found == sensors.end())
    sheet.O2Sensor = sensors.front();
  else
    sheet.O2Sensor = *found;
  return sheet;
}

std::string_view SensorText(const ZoneMap& map) {
  const int flags = map.zones[zone::kFlags];
  const std::string_view text =
      GetO2Sensor(BitIsSet(flags, z5::kEGR), BitIsSet(flags, z5::kWideBand),
                  map.chip.intChipVersion, map.chip.datChipDate)
          .text;
  if (text.empty()) return "NB";
  return text;
}

ZoneSheet WithBoostTargets(ZoneSheet sheet, bool boostTargets) {
  sheet.boostTargets = boostTargets;
  for (int i = 0; i < kBoostTargets; ++i)
    sheet.Shown(zone::kFirstBoostTarget + i) = boostTargets ? kLeastMeanOfTargets : 0;
  return sheet;
}

ZoneSheet WithChipRules(ZoneSheet sheet) {
  for (int i = 0; i < kTicks; ++i) {
    // Target control is greyed on a normally aspirated chip, but keeps its tick.
    const Tick tick{i};
    if (tick != Tick::TargetControl && !TickExists(sheet, tick)) sheet.Ticked(tick) = false;
  }
  sheet.Shown(zone::kIntakeLimit) =
      Forced(sheet, zone::kIntakeLimit, sheet.Shown(zone::kIntakeLimit));
  sheet.autoTuneType = ChosenType(sheet.autoTuneType, AutoTuneTypes(sheet.chip));
  return WithSensorRules(std::move(sheet));
}

std::vector<std::string_view> O2SensorsOf(const ZoneSheet& sheet) {
  return O2Sensors(sheet.chip, sheet.Ticked(Tick::EGR) && TickExists(sheet, Tick::EGR),
                   sheet.autoTuneType);
}

bool MeanSaysBoostTargets(const ZoneSheet& sheet) {
  const auto first = sheet.shown.begin() + zone::kFirstBoostTarget;
  return std::accumulate(first, first + kBoostTargets, 0) / kBoostTargets >= kLeastMeanOfTargets;
}

ZoneSheet WithCell(ZoneSheet sheet, int zone, std::string_view text) {
  if (IsBlackedOut(sheet, zone)) return sheet;
  int number = FieldRange(sheet, zone).low;
  if (IsNumeric(text)) number = StringToLong(text);
  sheet.Shown(zone) = Forced(sheet, zone, number);
  return sheet;
}

ZoneSheet WithFirstBoostTargetInAll(ZoneSheet sheet) {
  for (int i = 1; i < kBoostTargets; ++i)
    sheet.Shown(zone::kFirstBoostTarget + i) = sheet.Shown(zone::kFirstBoostTarget);
  return sheet;
}

ZoneSheet WithOffset(ZoneSheet sheet, std::span<const int> cells, int offset) {
  if (offset != 0)
    ForEachCell(sheet, cells, [&](std::size_t i) { return sheet.Shown(cells[i]) + offset; });
  return sheet;
}

ZoneSheet WithCellsOf(ZoneSheet sheet, std::span<const int> cells, const ZoneSettings& benchmark) {
  for (const int cell : cells)
    if (!IsBlackedOut(sheet, cell)) sheet.Shown(cell) = benchmark[static_cast<std::size_t>(cell)];
  return sheet;
}

ZoneSheet WithDifference(ZoneSheet sheet, std::span<const int> cells,
                         const ZoneSettings& benchmark) {
  // The cell and its difference are the benchmark's value.
  ForEachCell(sheet, cells,
              [&](std::size_t i) { return benchmark[static_cast<std::size_t>(cells[i])]; });
  return sheet;
}

ZoneSheet WithNumbers(ZoneSheet sheet, std::span<const int> cells, std::span<const int> numbers) {
  ForEachCell(sheet, cells, [&](std::size_t i) { return numbers[i]; });
  return sheet;
}

ZoneSheet WithInterpolation(ZoneSheet sheet, const CellBlock& block) {
  const int columns = block.columns;
  int rows = 0;
  if (columns > 0) rows = static_cast<int>(block.cells.size()) / columns;
  if (rows == 0) return sheet;
  const ZoneSheet before = sheet;
  const auto corner = [&](int row, int column) {
    return static_cast<double>(
        before.Shown(block.cells[static_cast<std::size_t>(row * columns + column)]));
  };
  ForEachCell(sheet, block.cells, [&](std::size_t i) {
    const int at = static_cast<int>(i);
    double down = 0;
    if (rows > 1) down = at / columns / (rows - 1.0);
    double along = 0;
    if (columns > 1) along = at % columns / (columns - 1.0);
    const double top = std::lerp(corner(0, 0), corner(0, columns - 1), along);
    const double bottom = std::lerp(corner(rows - 1, 0), corner(rows - 1, columns - 1), along);
    return RoundToLong(std::lerp(top, bottom, down));
  });
  return sheet;
}

ZoneSheet WithSmoothing(ZoneSheet sheet, const CellBlock& block) {
  constexpr int kOwnWeight = 2;
  const int columns = block.columns;
  int rows = 0;
  if (columns > 0) rows = static_cast<int>(block.cells.size()) / columns;
  const ZoneSheet before = sheet;
  ForEachCell(sheet, block.cells, [&](std::size_t i) {
    const int row = static_cast<int>(i) / columns, column = static_cast<int>(i) % columns;
    int sum = kOwnWeight * before.Shown(block.cells[i]), weight = kOwnWeight;
    constexpr int kSteps[][2] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}};
    for (const auto& step : kSteps) {
      const int r = row + step[0], c = column + step[1];
      if (r < 0 || r >= rows || c < 0 || c >= columns) continue;
      const int neighbour = block.cells[static_cast<std::size_t>(r * columns + c)];
      if (IsBlackedOut(before, neighbour)) continue;
      sum += before.Shown(neighbour);
      ++weight;
    }
    return RoundToLong(sum / static_cast<double>(weight));
  });
  return sheet;
}

}  // namespace tarnview
