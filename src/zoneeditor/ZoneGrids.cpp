#include "zoneeditor/ZoneGrids.h"

#include <algorithm>

#include "ui/HeatColours.h"
#include "zones/ZoneNames.h"

namespace tarnview {
namespace {

constexpr Colour kConvertedColour = 0xE0E0E0, kNegativeColour = 255;
constexpr int kConvertedRow = 2;

}  // namespace

ZoneGrids::ZoneGrids(Form& form, SheetKeeper& keeper, const ZoneComparison& comparison,
                     Window& window)
    : grdData(form, "grdData", UpTo(kSheetGrids)),
      keeper_(keeper),
      comparison_(comparison),
      window_(window) {
  for (const auto& grid : grdData)
    grid->Edited = [this, which = SheetGrid{grid->index}](int row, int column,
                                                          const std::string& text) {
      CellEdited(which, row, column, text);
    };
}

void ZoneGrids::LayOut(bool readOnly) {
  for (const auto& grid : grdData) {
    const SheetGrid which{grid->index};
    const GridPlace size = SizeOf(which);
    grid->SetSize(size.row, size.column);
    grid->ReadOnly = readOnly || !IsSheetGrid(which);
    grid->Enabled = !readOnly || which == SheetGrid::Fuel || which == SheetGrid::Ignition;
  }
  if (keeper_.Sheet().normallyAspirated) At(SheetGrid::BoostTargets).Enabled = false;
}

void ZoneGrids::Show() {
  converted_ = window_.ConvertedTargets();
  for (int grid = 0; grid < kSheetGrids; ++grid) ShowGrid(SheetGrid{grid});
}

void ZoneGrids::ShowHeat(bool heat) {
  heat_ = heat;
  Show();
}

void ZoneGrids::ShowGrid(SheetGrid which) {
  Grid& grid = At(which);
  const ZoneRange range = FieldRange(keeper_.Sheet(), ZoneOfCell(which, 1, 3));
  grid.Min = range.low;
  grid.Max = range.high;
  for (int row = 0; row < grid.Rows(); ++row)
    for (int column = 0; column < grid.Columns(); ++column) {
      if (row == 0 || column == 0)
        grid.SetText(row, column, HeadingOf(which, row, column, keeper_.Sheet()));
      else
        grid.SetCell(row, column, CellFor(which, row, column));
    }
}

GridCell ZoneGrids::CellFor(SheetGrid grid, int row, int column) const {
  GridCell cell;
  if (grid == SheetGrid::AirFuelTargets && row == kConvertedRow) {
    cell.text = converted_[static_cast<std::size_t>(column - 1)];
    cell.backColour = kConvertedColour;
    cell.locked = true;
    return cell;
  }
  const int zone = ZoneOfCell(grid, row, column);
  if (IsBlackedOut(keeper_.Sheet(), zone)) {
    cell.blackedOut = true;
    return cell;
  }
  if (IsSheetGrid(grid)) return ValueCell(grid, zone);
  return ComparedCell(grid, zone);
}

GridCell ZoneGrids::ValueCell(SheetGrid grid, int zone) const {
  const ZoneSheet& sheet = keeper_.Sheet();
  const int now = sheet.Shown(zone), opened = keeper_.OpenedSheet().Shown(zone);
  GridCell cell;
  cell.text = std::to_string(now);
  if (now != opened) {
    if (now > opened)
      cell.mark = GridCell::Mark::Raised;
    else
      cell.mark = GridCell::Mark::Lowered;
    cell.toolTip = "Opened as " + std::to_string(opened);
  }
  if (heat_ && IsZoneGrid(grid)) {
    const ZoneRange range = FieldRange(sheet, zone);
    cell.backColour =
        HeatColourOf(static_cast<double>(now - range.low) / std::max(1, range.high - range.low));
  }
  return cell;
}

GridCell ZoneGrids::ComparedCell(SheetGrid grid, int zone) const {
  GridCell cell;
  const ZoneSettings* benchmark = comparison_.Zones();
  if (!benchmark) return cell;
  const int there = (*benchmark)[static_cast<std::size_t>(zone)];
  const int difference = there - keeper_.Sheet().Shown(zone);
  if (IsBenchmarkGrid(grid)) {
    cell.text = std::to_string(there);
  } else if (difference != 0) {
    cell.text = std::to_string(difference);
    if (difference < 0) cell.colour = kNegativeColour;
  }
  return cell;
}

void ZoneGrids::CellEdited(SheetGrid grid, int row, int column, const std::string& text) {
  const int zone = ZoneOfCell(grid, row, column);
  if (zone < 0) return;
  const ZoneSheet& before = keeper_.Sheet();
  ZoneSheet after = WithCell(before, zone, text);
  std::string step = ZoneName(zone);
  if (IsZoneGrid(grid)) step = GridCellName(zone);
  step += " " + std::to_string(before.Shown(zone)) + " to " + std::to_string(after.Shown(zone));
  if (grid == SheetGrid::BoostTargets && column == 1 && window_.CopyFirstToAll()) {
    after = WithFirstBoostTargetInAll(std::move(after));
    step = "All boost targets " + std::to_string(after.Shown(zone));
  }
  keeper_.Do(std::move(step), std::move(after));
}

std::vector<int> ZoneGrids::Selected(SheetGrid grid) const {
  return CellsOf(grid, At(grid).Selection(), keeper_.Sheet());
}

void ZoneGrids::ApplyOffset(SheetGrid grid, int offset) {
  if (offset == 0) return;
  const std::vector<int> cells = Selected(grid);
  keeper_.Do("Offset " + SignedText(offset) + " on " + CountOf(grid, cells.size()),
             WithOffset(keeper_.Sheet(), cells, offset));
}

void ZoneGrids::CopyToDatalog(SheetGrid benchmark, const std::string& name) {
  const std::vector<int> cells = Selected(benchmark);
  if (const ZoneSettings* zones = comparison_.Zones())
    keeper_.Do("Copy " + CountOf(benchmark, cells.size()) + " from " + name,
               WithCellsOf(keeper_.Sheet(), cells, *zones));
}

void ZoneGrids::ApplyDifference(SheetGrid difference) {
  const std::vector<int> cells = Selected(difference);
  if (const ZoneSettings* zones = comparison_.Zones())
    keeper_.Do("Apply difference on " + CountOf(difference, cells.size()),
               WithDifference(keeper_.Sheet(), cells, *zones));
}

void ZoneGrids::Interpolate(SheetGrid grid) {
  const CellBlock block = BlockOf(grid, At(grid).Selection());
  keeper_.Do("Interpolate " + CountOf(grid, block.cells.size()),
             WithInterpolation(keeper_.Sheet(), block));
}

void ZoneGrids::Smooth(SheetGrid grid) {
  const CellBlock block = BlockOf(grid, At(grid).Selection());
  keeper_.Do("Smooth " + CountOf(grid, block.cells.size()), WithSmoothing(keeper_.Sheet(), block));
}

void ZoneGrids::ResetToOpened(SheetGrid grid) {
  const std::vector<int> cells = Selected(grid);
  ZoneSheet after = keeper_.Sheet();
  for (const int cell : cells) after.Shown(cell) = keeper_.OpenedSheet().Shown(cell);
  keeper_.Do("Reset " + CountOf(grid, cells.size()), std::move(after));
}

void ZoneGrids::Paste(SheetGrid grid, const std::string& text) {
  const Pasted pasted = PasteOf(text, grid, At(grid).Selection(), keeper_.Sheet());
  if (!pasted.trouble.empty()) return keeper_.Say(pasted.trouble);
  keeper_.Do("Paste " + CountOf(grid, pasted.cells.size()),
             WithNumbers(keeper_.Sheet(), pasted.cells, pasted.numbers));
}

std::optional<SheetGrid> ZoneGrids::Focused(const Control* active) const {
  for (const auto& grid : grdData)
    if (grid.get() == active) return SheetGrid{grid->index};
  return std::nullopt;
}

std::optional<SheetGrid> ZoneGrids::Editable(const Control* active) const {
  const auto grid = Focused(active);
  if (grid && !At(*grid).ReadOnly && At(*grid).Enabled()) return grid;
  return std::nullopt;
}

}  // namespace tarnview
