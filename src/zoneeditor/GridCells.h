#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/Grid.h"
#include "zones/ZoneEdits.h"

namespace tarnview {

/// The grids of the editor, by their index.
enum class SheetGrid : int {
  Fuel = 0,
  FuelBenchmark = 1,
  FuelDifference = 2,
  Ignition = 3,
  IgnitionBenchmark = 4,
  IgnitionDifference = 5,
  BoostTargets = 6,
  FuelByRPM = 7,
  AirFuelTargets = 8,
};
inline constexpr int kSheetGrids = 9;

inline bool IsBenchmarkGrid(SheetGrid grid) {
  return grid == SheetGrid::FuelBenchmark || grid == SheetGrid::IgnitionBenchmark;
}
inline bool IsDifferenceGrid(SheetGrid grid) {
  return grid == SheetGrid::FuelDifference || grid == SheetGrid::IgnitionDifference;
}
/// One whose cells are the sheet's own.
inline bool IsSheetGrid(SheetGrid grid) {
  return !IsBenchmarkGrid(grid) && !IsDifferenceGrid(grid);
}
/// One of the six, of zones by load and engine speed.
inline bool IsZoneGrid(SheetGrid grid) { return grid <= SheetGrid::IgnitionDifference; }

/// Rows and columns with their headings.
GridPlace SizeOf(SheetGrid grid);
/// The zone of a cell, which counts from 1; -1 for a cell that is none (row "Conv").
int ZoneOfCell(SheetGrid grid, int row, int column);
/// The text of a heading; the unit of the boost targets stands in the corner.
std::string HeadingOf(SheetGrid grid, int row, int column, const ZoneSheet& sheet);
/// "+3", "-3", "0".
std::string SignedText(int number);
/// "12 fuel cells", "1 boost target".
std::string CountOf(SheetGrid grid, std::size_t cells);

/// The cells of a range that are zones and not blacked out.
std::vector<int> CellsOf(SheetGrid grid, const GridRange& range, const ZoneSheet& sheet);
/// All of them, for what needs the block's shape; nothing where one is no zone.
CellBlock BlockOf(SheetGrid grid, const GridRange& range);

// A range as the text of a spreadsheet: cells parted by tabs, rows by line ends.

std::string TextOf(const Grid& grid, const GridRange& range, bool headings);

struct Pasted {
  std::vector<int> cells;
  std::vector<int> numbers;
  std::string trouble;  ///< why nothing can be pasted; or empty
};
/// A text pasted with its first cell at the range's; a single number fills the range.
Pasted PasteOf(std::string_view text, SheetGrid grid, const GridRange& range,
               const ZoneSheet& sheet);

}  // namespace tarnview
