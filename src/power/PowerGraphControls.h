#pragma once

#include "ui/Chart.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/MenuItem.h"
#include "ui/ProgressBar.h"
#include "ui/StatusBar.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"

namespace tarnview {

inline constexpr int kRecentPowerFiles = 9;

/// The controls of a power graph window, in reading order. No behaviour: that is frmPowerGraph's.
class PowerGraphControls : public Form {
 public:
  explicit PowerGraphControls(Host& itsHost)
      : Form(itsHost, "frmPowerGraph", "Tarnview Power Graph") {}

  // Left column: the run, the car, the day's air, the benchmark.
  Frame fraPlotRange{*this, "fraPlotRange", "Run"};
  Label lblPlotRangeFrom{*this, "lblPlotRangeFrom", "&From"};
  TextBox txtPlotRangeFrom{*this, "txtPlotRangeFrom"};
  UpDown updPlotRangeFrom{*this, "updPlotRangeFrom"};
  Label lblPlotRangeTo{*this, "lblPlotRangeTo", "&To"};
  TextBox txtPlotRangeTo{*this, "txtPlotRangeTo"};
  UpDown updPlotRangeTo{*this, "updPlotRangeTo"};
  CommandButton cmdFindRuns{*this, "cmdFindRuns", "Find &Runs"};
  ListView lvwRuns{*this, "lvwRuns", {{"From", true}, {"To", true}, {"RPM", true}, {"Secs", true}}};
  CommandButton cmdDrawGraph{*this, "cmdDrawGraph", "&Draw"};

  Frame fraCar{*this, "fraCar", "Car"};
  Label lblCarDefs{*this, "lblCarDefs", "&Car"};
  ComboBox cboCarDefs{*this, "cboCarDefs"};
  Label lblGear{*this, "lblGear", "&Gear"};
  ComboBox cboGear{*this, "cboGear"};
  Label lblWeight{*this, "lblWeight", "Contents &Weight"};
  TextBox txtWeight{*this, "txtWeight"};
  UpDown updWeight{*this, "updWeight"};
  Label lblSmoothFactor{*this, "lblSmoothFactor", "S&moothing"};
  TextBox txtSmoothFactor{*this, "txtSmoothFactor"};
  UpDown updSmoothFactor{*this, "updSmoothFactor"};
  Label lblUnits{*this, "lblUnits", "&Units"};
  ComboBox cboUnits{*this, "cboUnits"};

  Frame fraAir{*this, "fraAir", "Air"};
  CheckBox chkSAE{*this, "chkSAE", "S&AE Correction"};
  TextBox txtCorrFactor{*this, "txtCorrFactor"};
  Label lblAmbTemp{*this, "lblAmbTemp", "T&emperature ('C)"};
  TextBox txtAmbTemp{*this, "txtAmbTemp"};
  UpDown updAmbTemp{*this, "updAmbTemp"};
  Label lblAtmos{*this, "lblAtmos", "&Pressure (kPa)"};
  TextBox txtAtmos{*this, "txtAtmos"};
  UpDown updAtmos{*this, "updAtmos"};
  Label lblHumidityType{*this, "lblHumidityType", "&Humidity"};
  ComboBox cboHumidityType{*this, "cboHumidityType"};
  Label lblRH{*this, "lblRH", "%"};
  TextBox txtRH{*this, "txtRH"};
  UpDown updRH{*this, "updRH"};

  Frame fraBenchmark{*this, "fraBenchmark", "Benchmark"};
  Label lblBenchmark2{*this, "lblBenchmark2"};
  Label lblBenchMarkAction{*this, "lblBenchMarkAction", "Sho&w"};
  ComboBox cboBenchMarkAction{*this, "cboBenchMarkAction"};

  // The graph, or the place where it will be.
  Chart chPowerGraph{*this, "chPowerGraph"};
  Frame fraPicture{*this, "fraPicture"};
  StatusBar staPowerGraph{*this, "staPowerGraph", 4};
  ProgressBar prgProgInd{*this, "prgProgInd"};

  // The menu bar, in order.
  MenuItem mnuFile{*this, "mnuFile", "&File"};
  MenuItem mnuFileOpen{*this, "mnuFileOpen", "&Open Benchmark...", "Ctrl+O"};
  MenuItem mnuFileSave{*this, "mnuFileSave", "&Save...", "Ctrl+S"};
  MenuItem mnuFileSaveAs{*this, "mnuFileSaveAs", "Save &As..."};
  MenuItem mnuFilePrint{*this, "mnuFilePrint", "&Print...", "Ctrl+P"};
  MenuItem mnuFilePrintPreview{*this, "mnuFilePrintPreview", "Print Pre&view..."};
  MenuItem mnuFileSavePicture{*this, "mnuFileSavePicture", "Save Pict&ure As..."};
  MenuItem mnuSepRecent{*this, "mnuSepRecent", "-"};
  ControlArray<MenuItem> mnuFileRecent{*this, "mnuFileRecent", UpTo(kRecentPowerFiles), "", ""};
  MenuItem mnuFileClose{*this, "mnuFileClose", "&Close", "Ctrl+W"};

  MenuItem mnuEdit{*this, "mnuEdit", "&Edit"};
  MenuItem mnuEditCopy{*this, "mnuEditCopy", "&Copy Graph", "Ctrl+C"};

  MenuItem mnuBench{*this, "mnuBench", "&Benchmark"};
  MenuItem mnuBenchCalcDet{*this, "mnuBenchCalcDet", "&Calculation Details..."};

  MenuItem mnuTools{*this, "mnuTools", "&Tools"};
  MenuItem mnuToolsFindRuns{*this, "mnuToolsFindRuns", "&Find Runs", "Ctrl+R"};
  MenuItem mnuToolsSpeed{*this, "mnuToolsSpeed", "&Speed Graph..."};
  MenuItem mnuToolsCopy{*this, "mnuToolsCopy", "&Copy to Sample Graph"};

  MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
  MenuItem mnuHelpHelp{*this, "mnuHelpHelp", "&Power Graphs"};

  // The graph's own menu.
  MenuItem mnuRightClick{*this, "mnuRightClick", "Graph"};
  MenuItem mnuRightClickCopy{*this, "mnuRightClickCopy", "&Copy Graph"};
  MenuItem mnuRightClickPrint{*this, "mnuRightClickPrint", "&Print..."};
};

}  // namespace tarnview
