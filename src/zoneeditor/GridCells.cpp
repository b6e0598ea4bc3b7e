#include "zoneeditor/GridCells.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "zones/ZoneFlags.h"
#include "zones/ZoneGrid.h"

namespace tarnview {
namespace {

/// The shape of a grid: its size with headings, the zone of its first cell, what its cells are
/// called.
struct Shape {
  int rows, columns;
  int firstZone;
  const char* cell;
};
constexpr Shape kFuel{7, 17, 32, "fuel cell"};
constexpr Shape kIgnition{7, 17, 128, "ignition cell"};
constexpr Shape kShapes[kSheetGrids] = {
    kFuel,
    kFuel,
    kFuel,
    kIgnition,
    kIgnition,
    kIgnition,
    {2, 12, zone::kFirstBoostTarget, "boost target"},
    {2, 5, 22, "fuel value"},
    {3, 7, zone::kFirstTarget, "air/fuel target"},
};
const Shape& ShapeOf(SheetGrid grid) { return kShapes[static_cast<std::size_t>(grid)]; }

/// The small grids have their zones in row 1.
constexpr int kValueRow = 1;

using Texts = std::vector<std::string>;

std::vector<Texts> RowsOf(std::string_view text) {
  std::vector<Texts> rows;
  std::string_view line;
  while (TakeLine(text, line)) rows.push_back(line.empty() ? Texts{""} : Split(line, '\t'));
  return rows;
}

/// The whole range with one number.
std::vector<Texts> Filled(const std::string& text, const GridRange& range) {
  const auto rows = static_cast<std::size_t>(range.bottom - range.top + 1);
  const auto columns = static_cast<std::size_t>(range.right - range.left + 1);
  return {rows, Texts(columns, text)};
}

}  // namespace

GridPlace SizeOf(SheetGrid grid) { return {ShapeOf(grid).rows, ShapeOf(grid).columns}; }

int ZoneOfCell(SheetGrid grid, int row, int column) {
  const Shape& shape = ShapeOf(grid);
  if (row < 1 || column < 1 || row >= shape.rows || column >= shape.columns) return -1;
  if (IsZoneGrid(grid)) return shape.firstZone + kGridColumns * (row - 1) + column - 1;
  if (row == kValueRow) return shape.firstZone + column - 1;
  return -1;
}

std::string HeadingOf(SheetGrid grid, int row, int column, const ZoneSheet& sheet) {
  if (row == 0 && column == 0) return TextIf(grid == SheetGrid::BoostTargets, BoostUnit(sheet));
  if (IsZoneGrid(grid) && row == 0) return ZoneColumnHeading(column - 1);
  if (IsZoneGrid(grid)) return std::string(ZoneRowHeading(sheet.normallyAspirated, row));
  if (row == 0) return std::string(FieldLabel(sheet, ZoneOfCell(grid, kValueRow, column)));
  if (grid == SheetGrid::BoostTargets) return "";
  if (row == kValueRow) return "Val";
  return "Conv";
}

std::string SignedText(int number) {
  if (number > 0) return "+" + std::to_string(number);
  return std::to_string(number);
}

std::string CountOf(SheetGrid grid, std::size_t cells) {
  return Counted(cells, ShapeOf(grid).cell);
}

std::vector<int> CellsOf(SheetGrid grid, const GridRange& range, const ZoneSheet& sheet) {
  std::vector<int> cells;
  for (int row = range.top; row <= range.bottom; ++row)
    for (int column = range.left; column <= range.right; ++column)
      if (const int zone = ZoneOfCell(grid, row, column); zone >= 0 && !IsBlackedOut(sheet, zone))
        cells.push_back(zone);
  return cells;
}

CellBlock BlockOf(SheetGrid grid, const GridRange& range) {
  CellBlock block{{}, range.right - range.left + 1};
  for (int row = range.top; row <= range.bottom; ++row)
    for (int column = range.left; column <= range.right; ++column) {
      const int zone = ZoneOfCell(grid, row, column);
      if (zone < 0) return {};
      block.cells.push_back(zone);
    }
  return block;
}

std::string TextOf(const Grid& grid, const GridRange& range, bool headings) {
  std::string text;
  for (int row = headings ? 0 : range.top; row <= range.bottom; ++row) {
    if (row > 0 && row < range.top) continue;
    Texts texts;
    if (headings) texts.push_back(grid.Text(row, 0));
    for (int column = range.left; column <= range.right; ++column)
      texts.push_back(grid.Text(row, column));
    text += Join(texts, "\t") + "\n";
  }
  return text;
}

Pasted PasteOf(std::string_view text, SheetGrid grid, const GridRange& range,
               const ZoneSheet& sheet) {
  Pasted pasted;
  auto rows = RowsOf(text);
  if (rows.empty()) return {{}, {}, "There is nothing to paste."};
  if (rows.size() == 1 && rows[0].size() == 1) rows = Filled(rows[0][0], range);
  for (std::size_t r = 0; r < rows.size(); ++r)
    for (std::size_t c = 0; c < rows[r].size(); ++c) {
      const int zone =
          ZoneOfCell(grid, range.top + static_cast<int>(r), range.left + static_cast<int>(c));
      if (zone < 0) return {{}, {}, "What was copied does not fit there; nothing was pasted."};
      if (IsBlackedOut(sheet, zone)) continue;
      if (!IsNumeric(rows[r][c]))
        return {{}, {}, "\"" + rows[r][c] + "\" is no number; nothing was pasted."};
      pasted.cells.push_back(zone);
      pasted.numbers.push_back(StringToLong(rows[r][c]));
    }
  return pasted;
}

}  // namespace tarnview
