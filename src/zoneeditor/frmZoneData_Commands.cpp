// The editor's commands: one table of what each does and when it may run, the grids' menus and
// keys.

#include "zoneeditor/frmGridGraph.h"
#include "zoneeditor/frmOffset.h"
#include "zoneeditor/frmZoneData.h"

namespace tarnview {
namespace {

constexpr int kLargeStep = 10;

}  // namespace

void frmZoneData::BindCommands() {
  commands_.Bind(Joined({EditCommands(), GridCommands(), DriveCommands(), ButtonCommands()}));
}

std::vector<Command> frmZoneData::EditCommands() {
  const auto focused = [this] { return FocusedGrid() != nullptr; };
  const auto editable = [this] { return Grids.Editable(ActiveControl()).has_value(); };
  const auto onGrid = [this](void (ZoneGrids::*edit)(SheetGrid)) {
    return [this, edit] {
      if (const auto grid = Grids.Editable(ActiveControl())) (Grids.*edit)(*grid);
    };
  };
  return {
      // clang-format off
      {&mnuEditUndo, [this] { GoTo(history_.Done() - 1); }, [this] { return history_.CanUndo(); }},
      {&mnuEditRedo, [this] { GoTo(history_.Done() + 1); }, [this] { return history_.CanRedo(); }},
      {&mnuEditCopy, [this] { CopyCells(false); }, focused},
      {&mnuEditCopyHeadings, [this] { CopyCells(true); }, focused},
      {&mnuEditPaste,
       [this] {
         const auto grid = Grids.Editable(ActiveControl());
         if (grid) Grids.Paste(*grid, host.ClipboardText());
       },
       editable},
      {&mnuEditInterpolate, onGrid(&ZoneGrids::Interpolate), editable},
      {&mnuEditSmooth, onGrid(&ZoneGrids::Smooth), editable},
      {&mnuEditReset, onGrid(&ZoneGrids::ResetToOpened), editable},
      {&mnuViewHeat,
       [this] {
         mnuViewHeat.Checked = !mnuViewHeat.Checked;
         Grids.ShowHeat(mnuViewHeat.Checked);
       },
       {}},
      // clang-format on
  };
}

std::vector<Command> frmZoneData::GridCommands() {
  const auto edits = [this] { return !ReadOnly(); };
  const auto compares = [this] { return !ReadOnly() && comparison_.Zones(); };
  return {
      {&mnuApplyOffset, [this] { mnuApplyOffset_Click(); }, edits},
      {&mnuCopytoDatalog, [this] { Grids.CopyToDatalog(popupGrid_, cboBenchmark.Text()); },
       compares},
      {&mnuCopyOffset, [this] { Grids.ApplyDifference(popupGrid_); }, compares},
  };
}

std::vector<Command> frmZoneData::DriveCommands() {
  return {
      {&Driven.cmdNextInCell, [this] { Driven.NextInCell(); },
       [this] { return Driven.HasDrive() && Driven.HasCell(); }},
      {&Driven.cmdPropose, [this] { Driven.Propose(); }, [this] { return Driven.HasDrive(); }},
      {&Driven.cmdApplyProposal, [this] { Driven.ApplyProposal(); },
       [this] { return Driven.HasProposal(); }},
  };
}

std::vector<Command> frmZoneData::ButtonCommands() {
  const auto compares = [this] { return comparison_.Zones() != nullptr; };
  std::vector<Command> rows;
  for (const auto& button : cmdGraph) {
    const SheetGrid grid{button->index};
    rows.push_back({button.get(), [this, grid] { cmdGraph_Click(grid); },
                    [this, grid] { return !ReadOnly() || IsSheetGrid(grid); }});
  }
  const std::vector<Command> others{
      {&cmdCopyBenchmark, [this] { cmdCopyBenchmark_Click(); }, compares},
      {&cmdDetails, [this] { cmdDetails_Click(); }, compares},
      {&cmdDefault, [this] { cmdDefault_Click(); }, {}},
      {&cmdUpload,
       [this] {
         if (around_.upload) around_.upload(Sheet(), parameters_.map);
       },
       [this] { return UploadFits(); }},
      {&cmdOK, [this] { cmdOK_Click(); }, {}},
      {&cmdCancel, [this] { Unload(); }, {}},
  };
  rows.insert(rows.end(), others.begin(), others.end());
  return rows;
}

/// What the 3D graph shows of a grid. Of the map's own two, cells that are no zones have a number
/// there, too; what is compared with has none.
GridGraphRequest frmZoneData::GraphOf(SheetGrid grid) const {
  const int index = static_cast<int>(grid);
  const StartingAngles angles = AnglesOf(around_.settings.angles, index);
  const std::size_t tab = IsFuelGrid(index) ? 1 : 2;
  GridGraphRequest request;
  request.readOnly = ReadOnly() || !IsSheetGrid(grid);
  request.rotation = angles.rotation;
  request.elevation = angles.elevation;
  request.table = TableOf(Grids.At(grid));
  for (int row = 1; row <= kGridRows; ++row)
    for (int column = 1; column <= kGridColumns; ++column)
      if (IsSheetGrid(grid) && request.table.IsLocked(row, column))
        request.table.Text(row, column) =
            std::to_string(Sheet().Shown(ZoneOfCell(grid, row, column)));
  request.caption = tabZoneData2.Tabs()[tab].caption + " (" + fraData(index).Caption() + ")";
  request.limits = FieldRange(Sheet(), ZoneOfCell(grid, 1, 1));
  request.normallyAspirated = Sheet().normallyAspirated;
  request.kind = GraphKind(index);
  request.source = GraphSource(index, cboBenchmark.Text());
  request.grid = index;
  return request;
}

void frmZoneData::cmdGraph_Click(SheetGrid grid) {
  const GridGraphRequest request = GraphOf(grid);
  frmGridGraph window(host, {around_.settings.angles, around_.errors, around_.messages}, request);
  window.ShowModal();
  if (request.readOnly || !window.Accepted()) return;
  const auto changed = [&](ZoneGrid zones) {
    return WithGraphTable(Sheet(), zones, request.table, window.Table());
  };
  if (grid == SheetGrid::Fuel)
    Do("3D graph of the fuel zones", changed(ZoneGrid::Fuel));
  else
    Do("3D graph of the ignition zones", changed(ZoneGrid::Ignition));
}

void frmZoneData::GridRightClicked(SheetGrid grid) {
  popupGrid_ = grid;
  commands_.Update();
  if (grid == SheetGrid::FuelByRPM || grid == SheetGrid::AirFuelTargets) return;
  MenuItem* menu = &mnuDatalogGrid;
  if (IsBenchmarkGrid(grid)) menu = &mnuBenchmarkGrid;
  if (IsDifferenceGrid(grid)) menu = &mnuDifferenceGrid;
  host.PopupMenu(*menu);
}

void frmZoneData::mnuApplyOffset_Click() {
  frmOffset window(host);
  window.ShowModal();
  if (window.Accepted()) Grids.ApplyOffset(popupGrid_, window.Offset());
}

const Grid* frmZoneData::FocusedGrid() const {
  if (const auto grid = Grids.Focused(ActiveControl())) return &Grids.At(*grid);
  return Driven.Focused(ActiveControl());
}

void frmZoneData::CopyCells(bool headings) {
  if (const Grid* cells = FocusedGrid())
    host.SetClipboardText(TextOf(*cells, cells->Selection(), headings));
}

void frmZoneData::StepCells(int by) {
  if (const auto grid = Grids.Editable(ActiveControl())) Grids.ApplyOffset(*grid, by);
}

/// "+" and "-" step the selected cells, with Shift by ten.
bool frmZoneData::Form_KeyDown(const KeyPress& key) {
  const bool plus = key.key == "Plus", minus = key.key == "Minus";
  const auto grid = Grids.Editable(ActiveControl());
  if ((!plus && !minus) || key.ctrl || key.alt || !grid || Grids.At(*grid).IsEditing())
    return false;
  int step = key.shift ? kLargeStep : 1;
  if (minus) step = -step;
  StepCells(step);
  return true;
}

}  // namespace tarnview
