#include "zoneeditor/DriveGrids.h"

#include "ui/HeatColours.h"
#include "zoneeditor/GridCells.h"

namespace tarnview {
namespace {

/// By GridShow.
struct ShowRow {
  const char* entry;
  const char* caption;  ///< over the grid
};
constexpr ShowRow kShows[] = {{"Nothing", ""},
                              {"Visits", "Visits (Samples)"},
                              {"Air/Fuel Error", "Air/Fuel Error (%)"},
                              {"Knock", "Highest Knock"}};

constexpr Colour kLeanColour = 255;

std::vector<std::string> Entries() {
  std::vector<std::string> entries;
  for (const ShowRow& row : kShows) entries.push_back(row.entry);
  return entries;
}

template <class Visit>
void ForEachCell(Visit&& visit) {
  for (int row = 1; row <= kGridRows; ++row)
    for (int column = 1; column <= kGridColumns; ++column) visit(row, column);
}

void SetHeadings(Grid& grid, const ZoneSheet& sheet) {
  for (int row = 0; row <= kGridRows; ++row)
    grid.SetText(row, 0, HeadingOf(SheetGrid::Fuel, row, 0, sheet));
  for (int column = 1; column <= kGridColumns; ++column)
    grid.SetText(0, column, HeadingOf(SheetGrid::Fuel, 0, column, sheet));
}

}  // namespace

DriveGrids::DriveGrids(Form& form, SheetKeeper& keeper, ZoneGrids& grids, Drive* drive)
    : fraDrive(form, "fraDrive", UpTo(2), std::string()),
      grdDrive(form, "grdDrive", UpTo(2)),
      fraProposal(form, "fraProposal", "Proposed Changes"),
      grdProposal(form, "grdProposal"),
      cmdApplyProposal(form, "cmdApplyProposal", "&Apply"),
      lblShowOnGrid(form, "lblShowOnGrid", "S&how on Grid"),
      cboShowOnGrid(form, "cboShowOnGrid"),
      chkWholeLog(form, "chkWholeLog", "Whole &Log"),
      cmdNextInCell(form, "cmdNextInCell", "Ne&xt in Cell"),
      cmdPropose(form, "cmdPropose", "P&ropose"),
      keeper_(keeper),
      grids_(grids),
      drive_(drive) {
  cboShowOnGrid.SetList(Entries());
  cboShowOnGrid.SetListIndex(static_cast<int>(GridShow::Nothing));
  chkWholeLog.ToolTip = std::string("All samples of the log, not the plot range alone");
  cmdPropose.ToolTip = std::string("Changes that would bring the mixture to its target");
  cboShowOnGrid.Click = [this] {
    ReadDrive();
    if (Shows() == GridShow::Nothing) proposal_.reset();
    Show();
  };
  chkWholeLog.Click = [this] {
    ReadDrive();
    Show();
  };
  for (const auto& grid : grdDrive) {
    grid->Click = [this, &grid = *grid](int, int) {
      Choose(grid);
      NextInCell();
    };
    grid->SelectionChanged = [this, &grid = *grid] { Choose(grid); };
  }
}

void DriveGrids::LayOut(bool readOnly) {
  for (Control* control :
       std::initializer_list<Control*>{&lblShowOnGrid, &cboShowOnGrid, &chkWholeLog, &cmdNextInCell,
                                       &cmdPropose, &cmdApplyProposal})
    control->Visible = !readOnly;
  lblShowOnGrid.Enabled = cboShowOnGrid.Enabled = chkWholeLog.Enabled = HasDrive();
  for (Grid* grid : {&grdDrive(0), &grdDrive(1), &grdProposal}) {
    grid->SetSize(kGridRows + 1, kGridColumns + 1);
    grid->ReadOnly = true;
    SetHeadings(*grid, keeper_.Sheet());
  }
  chosen_ = nullptr;
}

/// Once for each change of what is asked: a long log is not read again for each edit.
void DriveGrids::ReadDrive() {
  if (!HasDrive()) return;
  if (chkWholeLog.Value)
    range_ = WholeLog(drive_->Log());
  else
    range_ = drive_->PlotRange();
  facts_ = ReadLogOnMap(drive_->Log(), range_);
  lastInCell_ = -1;
  most_ = 0;
  ForEachCell([&](int row, int column) {
    most_ = std::max(most_, facts_.Value(Shows(), row, column).value_or(0));
  });
}

void DriveGrids::Show() {
  const bool shows = HasDrive() && Shows() != GridShow::Nothing;
  for (const auto& frame : fraDrive) {
    frame->Caption = std::string(kShows[static_cast<std::size_t>(Shows())].caption);
    frame->Visible = shows;
  }
  for (const auto& grid : grdDrive) {
    grid->Visible = shows;
    ShowDrive(*grid);
  }
  ShowProposal();
  ShowRing();
  Changed();
}

void DriveGrids::ShowDrive(Grid& grid) {
  if (Shows() == GridShow::Nothing) return;
  ForEachCell(
      [&](int row, int column) { grid.SetCell(row, column, DriveCell(Shows(), row, column)); });
}

/// Lean cells are red; visits and knock are coloured by how much there is.
GridCell DriveGrids::DriveCell(GridShow show, int row, int column) const {
  GridCell cell;
  cell.locked = true;
  cell.text = facts_.Text(show, row, column);
  cell.toolTip = facts_.ToolTip(row, column);
  const auto value = facts_.Value(show, row, column);
  if (!value) return cell;
  if (show == GridShow::Error) {
    if (cell.text.starts_with('+')) cell.colour = kLeanColour;
  } else if (most_ > 0) {
    cell.backColour = HeatColourOf(*value / most_);
  }
  return cell;
}

void DriveGrids::ShowProposal() {
  for (Control* control :
       std::initializer_list<Control*>{&fraProposal, &grdProposal, &cmdApplyProposal})
    control->Visible = HasProposal();
  if (!HasProposal()) return;
  const ZoneSheet& sheet = keeper_.Sheet();
  proposal_ = tarnview::Propose(facts_, sheet);
  ForEachCell([&](int row, int column) {
    GridCell cell;
    cell.blackedOut = IsBlackedOut(sheet, ZoneCell(ZoneGrid::Fuel, row - 1, column - 1));
    const int change = proposal_->At(row, column);
    if (change != 0) {
      cell.text = SignedText(change);
      if (change > 0)
        cell.mark = GridCell::Mark::Raised;
      else
        cell.mark = GridCell::Mark::Lowered;
    }
    cell.toolTip = facts_.ToolTip(row, column);
    grdProposal.SetCell(row, column, std::move(cell));
  });
}

void DriveGrids::ShowRing() {
  int index = -1;
  if (HasDrive()) index = drive_->CurrentSample();
  std::optional<GridPoint> ring;
  if (index >= 0) {
    const PlaceOnMap place = PlaceOf(drive_->Log(), index);
    ring = GridPoint{place.row, place.column};
  }
  for (Grid* grid :
       {&grids_.At(SheetGrid::Fuel), &grids_.At(SheetGrid::Ignition), &grdDrive(0), &grdDrive(1)})
    grid->Ring = ring;
}

/// The same cell once more goes on with its samples.
void DriveGrids::Choose(const Grid& grid) {
  if (chosen_ == &grid && cell_ == grid.Current()) return;
  chosen_ = &grid;
  cell_ = grid.Current();
  lastInCell_ = -1;
  Changed();
}

void DriveGrids::NextInCell() {
  if (!HasDrive() || !HasCell()) return;
  const int found =
      tarnview::NextInCell(drive_->Log(), range_, cell_.row, cell_.column, lastInCell_);
  if (found < 0) return keeper_.Say("No sample lies in this cell.");
  lastInCell_ = found;
  drive_->SelectSample(found);
  keeper_.Say("Sample " + std::to_string(drive_->Log().Sample(found)) + ", one of " +
              std::to_string(facts_.At(cell_.row, cell_.column).samples) + " in this cell.");
  ShowRing();
}

void DriveGrids::Propose() {
  ReadDrive();
  proposal_ = tarnview::Propose(facts_, keeper_.Sheet());
  const int cells = proposal_->Cells();
  std::string told = CountOf(SheetGrid::Fuel, static_cast<std::size_t>(cells)) +
                     " would be changed. Nothing is changed yet.";
  if (cells == 0) {
    proposal_.reset();
    told = "No fuel cell with " + std::to_string(FuelProposal::kFewestSamples) +
           " samples is off its target.";
  }
  keeper_.Say(told);
  Show();
}

void DriveGrids::ApplyProposal() {
  if (!HasProposal()) return;
  const FuelProposal proposal = *proposal_;
  // What the drive says was of the zones before: it proposes no second time by itself.
  proposal_.reset();
  const auto cells = static_cast<std::size_t>(proposal.Cells());
  keeper_.Do("Proposal on " + CountOf(SheetGrid::Fuel, cells),
             WithProposal(keeper_.Sheet(), proposal));
}

const Grid* DriveGrids::Focused(const Control* active) const {
  for (const Grid* grid : {&grdDrive(0), &grdDrive(1), &grdProposal})
    if (grid == active) return grid;
  return nullptr;
}

}  // namespace tarnview
