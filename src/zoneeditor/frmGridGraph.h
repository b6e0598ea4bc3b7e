#pragma once

#include "base/ErrorLog.h"
#include "desk/ChartOutput.h"
#include "desk/Commands.h"
#include "desk/Messages.h"
#include "ui/Chart.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/MenuItem.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"
#include "zoneeditor/GridGraphTable.h"

namespace tarnview {

/// A zone grid of the editor as a surface, which can be turned and, where it is the editor's own,
/// changed.
class frmGridGraph : public Form {
 public:
  struct Surroundings {
    const GraphAngles& angles;
    ErrorLog& errors;
    Messages& messages;
  };
  frmGridGraph(Host& itsHost, const Surroundings& surroundings, GridGraphRequest request);

  Chart chGridGraph{*this, "chGridGraph"};
  Label lblRow{*this, "lblRow", "&MAP Zone"};
  ComboBox cboRow{*this, "cboRow"};
  Label lblColumn{*this, "lblColumn", "&RPM Zone"};
  ComboBox cboColumn{*this, "cboColumn"};
  Label lblValue{*this, "lblValue", "&Value"};
  TextBox txtValue{*this, "txtValue"};
  UpDown updValue{*this, "updValue"};
  Label lblRotation{*this, "lblRotation", "R&otation"};
  TextBox txtRotation{*this, "txtRotation"};
  UpDown updRotation{*this, "updRotation"};
  Label lblElevation{*this, "lblElevation", "&Elevation"};
  TextBox txtElevation{*this, "txtElevation"};
  UpDown updElevation{*this, "updElevation"};
  CommandButton cmdReset{*this, "cmdReset", "Rese&t"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  // The graph's own menu.
  MenuItem mnuRightClick{*this, "mnuRightClick", "Graph"};
  MenuItem mnuEditCopy{*this, "mnuEditCopy", "&Copy Graph to Clipboard", "Ctrl+C"};
  MenuItem mnuRightClickPrint{*this, "mnuRightClickPrint", "&Print Graph", "Ctrl+P"};
  MenuItem mnuRightClickSavePicture{*this, "mnuRightClickSavePicture", "Save Picture &As..."};

  // What was accepted.
  const GridGraphTable& Table() const { return table_; }
  int Rotation() const;
  int Elevation() const;

 private:
  void BindAngles();
  void BindCells();
  void BindButtons();
  void SetToolTips();
  void ShowTable();
  void ShowView();
  void ShowValue();
  void TakeValue();
  void StepValue(int by);
  void Reset();
  void cmdOK_Click();
  bool MayEdit() const;
  /// Row 1 to 6 and column 1 to 16 of the two lists; 0 for none.
  int Row() const;
  int Column() const;
  void SelectOnChart();

  Surroundings around_;
  GridGraphRequest request_;
  GridGraphTable table_;
  double zoom_ = 1;
  ChartOutput output_;
  Commands commands_;
};

}  // namespace tarnview
