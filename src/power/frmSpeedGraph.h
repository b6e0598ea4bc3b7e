#pragma once

#include <functional>

#include "base/ErrorLog.h"
#include "desk/ChartOutput.h"
#include "desk/Commands.h"
#include "desk/Messages.h"
#include "model/Settings.h"
#include "power/SpeedGraphInput.h"
#include "ui/Chart.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/MenuItem.h"
#include "ui/OptionButton.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"

namespace tarnview {

/// Speed over time of a run, with a benchmark's beside it, and how long each took from one speed to
/// another.
class frmSpeedGraph : public Form {
 public:
  struct Surroundings {
    Settings& settings;
    ErrorLog& errors;
    Messages& messages;
  };
  frmSpeedGraph(Host& itsHost, const Surroundings& surroundings, SpeedGraphInput input,
                std::function<void(int ID)> closed);

  Frame fraSpeedUnits{*this, "fraSpeedUnits", "Speed Units"};
  ControlArray<OptionButton> optSpeedUnits{*this, "optSpeedUnits", UpTo(2), "fraSpeedUnits", ""};
  Frame fraQuery{*this, "fraQuery", "Acceleration"};
  Label lblSpeedFrom{*this, "lblSpeedFrom", "&From"};
  TextBox txtSpeedFrom{*this, "txtSpeedFrom", "0"};
  UpDown updSpeedFrom{*this, "updSpeedFrom"};
  Label lblSpeedTo{*this, "lblSpeedTo", "&To"};
  TextBox txtSpeedTo{*this, "txtSpeedTo", "0"};
  UpDown updSpeedTo{*this, "updSpeedTo"};
  CommandButton cmdCalc{*this, "cmdCalc", "&Calculate"};
  Label lblResYou{*this, "lblResYou", "You (Secs)"};
  TextBox txtResYou{*this, "txtResYou"};
  Label lblResBench{*this, "lblResBench", "Benchmark (Secs)"};
  TextBox txtResBench{*this, "txtResBench"};
  Label lblOffset{*this, "lblOffset", "Benchmark &Offset (Secs)"};
  TextBox txtOffset{*this, "txtOffset", "0"};
  UpDown updOffset{*this, "updOffset"};
  CommandButton cmdClose{*this, "cmdClose", "Close"};
  Chart chSpeedGraph{*this, "chSpeedGraph"};

  MenuItem mnuFile{*this, "mnuFile", "&File"};
  MenuItem mnuFilePrint{*this, "mnuFilePrint", "&Print...", "Ctrl+P"};
  MenuItem mnuFilePrintPreview{*this, "mnuFilePrintPreview", "Print Pre&view..."};
  MenuItem mnuFileSavePicture{*this, "mnuFileSavePicture", "Save Pict&ure As..."};
  MenuItem mnuFileClose{*this, "mnuFileClose", "&Close", "Ctrl+W"};
  MenuItem mnuEdit{*this, "mnuEdit", "&Edit"};
  MenuItem mnuEditCopy{*this, "mnuEditCopy", "&Copy Graph", "Ctrl+C"};
  MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
  MenuItem mnuHelpHelp{*this, "mnuHelpHelp", "&Speed Graphs"};
  MenuItem mnuRightClick{*this, "mnuRightClick", "Graph"};
  MenuItem mnuRightClickCopy{*this, "mnuRightClickCopy", "&Copy Graph"};
  MenuItem mnuRightClickPrint{*this, "mnuRightClickPrint", "&Print..."};

  int ID = 0;  ///< its number among the open speed windows

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  std::vector<Command> CommandRows();
  std::vector<Command> OutputCommands();
  void BindControls();
  void BindArrows();
  bool HasBenchmark() const { return !input_.benchmark.empty(); }
  bool Imperial() const { return optSpeedUnits(0).Value; }
  std::vector<SpeedPoint> RunShown() const;
  std::vector<SpeedPoint> BenchmarkShown() const;
  void Draw();
  void UnitsChosen();
  void cmdCalc_Click();
  PrintDetails DetailsForPrint() const;

  Surroundings around_;
  SpeedGraphInput input_;
  std::function<void(int ID)> closed_;
  ChartOutput output_;
  Commands commands_;
  bool shownImperial_ = true;  ///< units of the fields and the chart
};

}  // namespace tarnview
