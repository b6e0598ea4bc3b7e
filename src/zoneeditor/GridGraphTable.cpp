#include "zoneeditor/GridGraphTable.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "base/Text.h"
#include "zones/ZoneEdits.h"

namespace tarnview {
namespace {

/// kPa of the rows' labels, normally aspirated.
constexpr int kLabelKPa[kGridRows] = {0, 34, 48, 61, 74, 88};
constexpr int kTurboRowKPa = 40;

constexpr const char* kSources[] = {"This Data Log", "Benchmark ", "Comparison with Benchmark "};

constexpr double kMostDivisions = 6;
constexpr double kSteps[] = {1, 2, 5};

}  // namespace

int GridGraphTable::Number(int row, int column) const { return StringToLong(Text(row, column)); }

GridGraphTable TableOf(const Grid& grid) {
  GridGraphTable table;
  for (int row = 1; row <= kGridRows; ++row)
    for (int column = 1; column <= kGridColumns; ++column) {
      const GridCell& cell = grid.At(row, column);
      table.Text(row, column) = cell.text;
      table.locked[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)] =
          cell.blackedOut;
    }
  return table;
}

bool IsFuelGrid(int grid) { return grid < 3; }

std::string GraphKind(int grid) {
  if (IsFuelGrid(grid)) return " Fuel Zone Graph";
  return " Ignition Zone Graph";
}

std::string GraphSource(int grid, const std::string& benchmark) {
  const int place = grid % 3;
  return kSources[place] + TextIf(place != 0, benchmark);
}

StartingAngles AnglesOf(const GraphAngles& settings, int grid) {
  if (IsFuelGrid(grid)) return {settings.lngFuelRotation, settings.lngFuelElevation};
  return {settings.lngIgnitionRotation, settings.lngIgnitionElevation};
}

std::string GraphRowLabel(bool normallyAspirated, int row) {
  int kPa = (row - 1) * kTurboRowKPa;
  if (normallyAspirated) kPa = kLabelKPa[row - 1];
  return std::to_string(kPa) + "kPa " + std::to_string(row * 100);
}

Surface SurfaceOf(const GridGraphRequest& request, const GridGraphTable& table) {
  Surface surface;
  surface.title =
      request.kind.substr(std::min(request.kind.find_first_not_of(' '), request.kind.size()));
  surface.subtitle = request.source;
  surface.rowTitle = "MAP Zone";
  surface.columnTitle = "RPM Zone (RPM / 100)";
  for (int column = 1; column <= kGridColumns; ++column)
    surface.columns.push_back(ZoneColumnHeading(column - 1));
  for (int row = 1; row <= kGridRows; ++row) {
    surface.rows.push_back(GraphRowLabel(request.normallyAspirated, row));
    for (int column = 1; column <= kGridColumns; ++column) {
      surface.values.push_back(table.Number(row, column));
      surface.locked.push_back(table.IsLocked(row, column));
    }
  }
  surface.height = HeightAxis(surface.values);
  if (IsFuelGrid(request.grid))
    surface.height.title = "Fuel";
  else
    surface.height.title = "Ignition";
  return surface;
}

ChartAxis HeightAxis(const std::vector<double>& values) {
  if (values.empty()) return {};
  const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
  for (double decade = 1;; decade *= 10)
    for (double step : kSteps) {
      step *= decade;
      const double min = std::floor(*lowest / step) * step;
      const double max = std::max(std::ceil(*highest / step) * step, min + step);
      if (max - min <= kMostDivisions * step)
        return {min, max, static_cast<int>((max - min) / step), "##0"};
    }
}

ZoneSheet WithGraphTable(const ZoneSheet& sheet, ZoneGrid grid, const GridGraphTable& before,
                         const GridGraphTable& after) {
  const int leftOut = grid == ZoneGrid::Fuel ? 2 : 1;
  std::vector<int> cells, numbers;
  for (int row = 1; row <= kGridRows; ++row)
    for (int column = row == kGridRows ? leftOut + 1 : 1; column <= kGridColumns; ++column) {
      if (after.Text(row, column) == before.Text(row, column)) continue;
      cells.push_back(ZoneCell(grid, row - 1, column - 1));
      numbers.push_back(after.Number(row, column));
    }
  return WithNumbers(sheet, cells, numbers);
}

}  // namespace tarnview
