#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/ErrorLog.h"
#include "desk/Commands.h"
#include "desk/Messages.h"
#include "model/ConversionTables.h"
#include "model/Settings.h"
#include "model/clsLogDataItem.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/MenuItem.h"
#include "ui/OptionButton.h"
#include "ui/TabStrip.h"
#include "zoneeditor/DriveGrids.h"
#include "zoneeditor/GeneralFields.h"
#include "zoneeditor/GridGraphTable.h"
#include "zoneeditor/ZoneComparison.h"
#include "zoneeditor/ZoneGrids.h"
#include "zones/EditHistory.h"

namespace tarnview {

/// What the zone editor opens with.
struct ZoneEditorParameters {
  ZoneMap map;
  std::optional<ComparisonZones> comparison;  ///< nothing: benchmarks alone are compared with
  bool detailsOnly = false;                   ///< a view in which nothing is edited
  std::string fileName;  ///< for the caption; one that ends in "MAP" is a MAP file's
  bool mayUpload = false;
};

/// The editor of zone settings: fields, grids, a comparison, and every step undone and redone.
class frmZoneData : public Form, private SheetKeeper, private ZoneGrids::Window {
 public:
  struct Surroundings {
    Settings& settings;  ///< the default benchmark and the user's own chip are set from here
    const clsBenchmarks& benchmarks;
    const ConversionTables& tables;
    const clsLogDataItem&
        auxInput;  ///< the item whose texts and factor air/fuel targets are shown by
    ErrorLog& errors;
    Messages& messages;
    /// Sends a sheet to the ECU; `source` is the map that was opened. Empty: there is no upload.
    std::function<void(const ZoneSheet& sheet, const ZoneMap& source)> upload = {};
    /// The drive that the grids can show; nullptr for none.
    DriveGrids::Drive* drive = nullptr;
    /// After each step, undo and redo.
    std::function<void(const EditHistory& history)> stepped = {};
  };
  frmZoneData(Host& itsHost, const Surroundings& surroundings, ZoneEditorParameters parameters);

 private:
  // The parts come before the controls that stand behind theirs in tab order.
  Surroundings around_;
  const ZoneEditorParameters parameters_;
  EditHistory history_;
  ZoneComparison comparison_;

 public:
  TabStrip tabZoneData2{*this, "tabZoneData2"};
  Frame fraGeneralTab{*this, "fraGeneralTab"};
  Frame fraFuelTab{*this, "fraFuelTab"};
  Frame fraIgnitionTab{*this, "fraIgnitionTab"};
  Frame fraNotesTab{*this, "fraNotesTab"};
  Frame fraBoost{*this, "fraBoost", "Wastegate"};
  Frame fraBoostTargets{*this, "fraBoostTargets", "Boost &Targets"};
  Label lblBenchmark{*this, "lblBenchmark", "Compare &with"};
  ComboBox cboBenchmark{*this, "cboBenchmark"};
  CommandButton cmdDetails{*this, "cmdDetails", "&Details..."};
  CommandButton cmdCopyBenchmark{*this, "cmdCopyBenchmark", "Co&py..."};
  GeneralFields Fields{*this, *this};
  ControlArray<OptionButton> radBoost;  ///< 0 boost targets, 1 wastegate
  ControlArray<Frame> fraData{*this, "fraData", UpTo(6), std::string()};
  ZoneGrids Grids{*this, *this, comparison_, *this};
  ControlArray<CommandButton> cmdGraph{*this, "cmdGraph", UpTo(6), std::string("&Graph...")};
  DriveGrids Driven;
  Label lblSteps{*this, "lblSteps", "&Steps"};
  ComboBox cboSteps{*this, "cboSteps"};
  Label lblStatus{*this, "lblStatus"};
  CommandButton cmdDefault{*this, "cmdDefault", "Set As De&fault"};
  CommandButton cmdUpload{*this, "cmdUpload", "&Upload..."};
  CommandButton cmdOK{*this, "cmdOK", "&OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

  MenuItem mnuEdit{*this, "mnuEdit", "&Edit"};
  MenuItem mnuEditUndo{*this, "mnuEditUndo", "&Undo", "Ctrl+Z"};
  MenuItem mnuEditRedo{*this, "mnuEditRedo", "&Redo", "Ctrl+Shift+Z"};
  MenuItem mnuEditCopy{*this, "mnuEditCopy", "Copy C&ells", "Ctrl+C"};
  MenuItem mnuEditCopyHeadings{*this, "mnuEditCopyHeadings", "Copy with &Headings", "Ctrl+Shift+C"};
  MenuItem mnuEditPaste{*this, "mnuEditPaste", "&Paste", "Ctrl+V"};
  MenuItem mnuEditInterpolate{*this, "mnuEditInterpolate", "&Interpolate", "Ctrl+I"};
  MenuItem mnuEditSmooth{*this, "mnuEditSmooth", "&Smooth", "Ctrl+M"};
  MenuItem mnuEditReset{*this, "mnuEditReset", "Reset to &Opened Value"};
  MenuItem mnuView{*this, "mnuView", "&View"};
  MenuItem mnuViewHeat{*this, "mnuViewHeat", "&Heat Colours"};

  // The grids' pop-up menus.
  MenuItem mnuDatalogGrid{*this, "mnuDatalogGrid", "Datalog"};
  MenuItem mnuApplyOffset{*this, "mnuApplyOffset", "&Apply Offset"};
  MenuItem mnuBenchmarkGrid{*this, "mnuBenchmarkGrid", "Benchmark"};
  MenuItem mnuCopytoDatalog{*this, "mnuCopytoDatalog", "&Copy to Datalog"};
  MenuItem mnuDifferenceGrid{*this, "mnuDifferenceGrid", "Difference"};
  MenuItem mnuCopyOffset{*this, "mnuCopyOffset", "&Apply Difference to Datalog"};

  const EditHistory& History() const { return history_; }
  /// Goes on where an editor that never closed was: its steps are undone and redone as if they were
  /// made here.
  void Resume(EditHistory history);
  /// The map as the form stands.
  ZoneMap Map() const { return Rebuild(history_.Now(), parameters_.map); }
  bool Changed() const { return Map() != parameters_.map; }

 protected:
  void Form_Load() override;
  bool Form_QueryUnload() override;
  bool Form_KeyDown(const KeyPress& key) override;

 private:
  const ZoneSheet& Sheet() const override { return history_.Now(); }
  const ZoneSheet& OpenedSheet() const override { return history_.Opened(); }
  void Do(std::string step, ZoneSheet after) override;
  void Say(std::string text) override { lblStatus.Caption = text; }
  std::vector<std::string> ConvertedTargets() const override;
  bool CopyFirstToAll() override;

  bool ReadOnly() const { return parameters_.detailsOnly; }
  void SetUpTabs();
  void SetHelpTopic();
  void SetUpCaptions();
  void SetUpComparison();
  void BindCommands();
  void BindControls();
  std::vector<Command> EditCommands();
  std::vector<Command> GridCommands();
  std::vector<Command> DriveCommands();
  std::vector<Command> ButtonCommands();
  void ShowSheet();
  void ShowSteps();
  void GoTo(std::size_t done);
  bool UploadFits() const;

  void GridRightClicked(SheetGrid grid);
  const Grid* FocusedGrid() const;
  void CopyCells(bool headings);
  void StepCells(int by);
  void cboBenchmark_Click();
  void radBoost_Click(int unit);
  void mnuApplyOffset_Click();
  GridGraphRequest GraphOf(SheetGrid grid) const;
  void cmdGraph_Click(SheetGrid grid);
  void cmdCopyBenchmark_Click();
  void cmdDetails_Click();
  void cmdDefault_Click();
  void cmdOK_Click();

  Commands commands_;
  SheetGrid popupGrid_ = SheetGrid::Fuel;  ///< where the last pop-up menu opened
  bool showing_ = false;                   ///< what the controls raise comes from ShowSheet
};

}  // namespace tarnview
