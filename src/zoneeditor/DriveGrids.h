#pragma once

#include <algorithm>
#include <optional>

#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Frame.h"
#include "ui/Grid.h"
#include "ui/Label.h"
#include "zoneeditor/LogOnMap.h"
#include "zoneeditor/SheetKeeper.h"
#include "zoneeditor/ZoneGrids.h"

namespace tarnview {

/// What a drive says of the fuel and ignition cells, in grids beside the editor's, and the changes
/// of the fuel zones that it proposes.
class DriveGrids {
 public:
  /// The log of the drive and the graph that shows it.
  struct Drive {
    virtual const OpenLog& Log() const = 0;
    virtual DrivenRange PlotRange() const = 0;
    /// Store index of the graph's current point; -1 for none.
    virtual int CurrentSample() const = 0;
    virtual void SelectSample(int index) = 0;

   protected:
    ~Drive() = default;
  };
  /// `drive`: nullptr where no samples are open.
  DriveGrids(Form& form, SheetKeeper& keeper, ZoneGrids& grids, Drive* drive);

  ControlArray<Frame> fraDrive;  ///< 0 on the fuel tab, 1 on the ignition tab
  ControlArray<Grid> grdDrive;
  Frame fraProposal;
  Grid grdProposal;
  CommandButton cmdApplyProposal;
  Label lblShowOnGrid;
  ComboBox cboShowOnGrid;
  CheckBox chkWholeLog;  ///< not the plot range alone
  CommandButton cmdNextInCell;
  CommandButton cmdPropose;

  /// In a view in which nothing is edited there is no drive.
  void LayOut(bool readOnly);
  /// After each change of the sheet.
  void Show();
  bool HasDrive() const { return drive_ != nullptr; }
  bool HasProposal() const { return proposal_.has_value(); }
  bool HasCell() const { return chosen_ != nullptr && Shows() != GridShow::Nothing; }
  /// To the next sample of the chosen cell in the graph.
  void NextInCell();
  void Propose();
  /// One step.
  void ApplyProposal();
  /// The one of these that has the focus.
  const Grid* Focused(const Control* active) const;
  /// Something that commands go by has changed.
  Event<> Changed;

 private:
  GridShow Shows() const { return GridShow{std::max(cboShowOnGrid.ListIndex(), 0)}; }
  void ReadDrive();
  void ShowDrive(Grid& grid);
  void ShowProposal();
  void ShowRing();
  void Choose(const Grid& grid);
  GridCell DriveCell(GridShow show, int row, int column) const;

  SheetKeeper& keeper_;
  ZoneGrids& grids_;
  Drive* const drive_;
  DrivenRange range_;
  LogOnMap facts_;
  double most_ = 0;  ///< of what is shown
  std::optional<FuelProposal> proposal_;
  const Grid* chosen_ = nullptr;  ///< the grid of the chosen cell
  GridPlace cell_;
  int lastInCell_ = -1;  ///< store index of the sample of it that was selected last
};

}  // namespace tarnview
