#pragma once

#include <memory>
#include <string>

#include "app/Customising.h"
#include "app/DefinitionInUse.h"
#include "app/EcuCommands.h"
#include "app/Globals.h"
#include "app/LogFiles.h"
#include "app/MainWindowControls.h"
#include "app/PowerWindows.h"
#include "app/ScatterWindows.h"
#include "app/SettingsFile.h"
#include "app/ZoneWindows.h"
#include "app/frmNonModalMessage.h"
#include "desk/ChartOutput.h"
#include "desk/Commands.h"
#include "desk/StatusArea.h"
#include "samplegraph/GraphMouse.h"
#include "samplegraph/LogExport.h"
#include "samplegraph/PlotRange.h"
#include "samplegraph/PointHighlight.h"
#include "samplegraph/PresetGraphs.h"
#include "samplegraph/SampleDetails.h"
#include "samplegraph/SampleGraph.h"
#include "samplegraph/Scrolling.h"
#include "samplegraph/ZoneInfluencePanel.h"
#include "samplegraph/Zoom.h"
#include "samplegraph/frmDataTags.h"
#include "ui/FormCollection.h"

namespace tarnview {

/// The main window: it puts the parts of the Sample Graph together and carries the menus.
class frmDataLogViewer : public MainWindowControls,
                         private LogFiles::SampleGraphWindow,
                         private SampleGraph::MainWindow,
                         private PointHighlight::MainWindow,
                         private Scrolling::MainWindow,
                         private Zoom::MainWindow,
                         private GraphMouse::MainWindow,
                         private PresetGraphs::MainWindow,
                         private frmDataTags::MainWindow,
                         private ScatterWindows::SampleGraphWindow,
                         private PowerWindows::SampleGraphWindow,
                         private Customising::MainWindow,
                         private ZoneWindows::SampleGraphWindow {
 public:
  frmDataLogViewer(Globals& globals, Services& services, SettingsFile& settingsFile);

  bool LoadDataFile(const std::string& path, int fileType) override {
    return logFiles_.LoadDataFile(path, fileType);
  }
  /// What a start with a file on the command line does: opens it and draws.
  void OpenFromCommandLine(const std::string& commandLine);

  /// Writes the settings file, where one is kept, with what the window shows now. False: the user
  /// was told.
  bool WriteINIFile() override;

  /// The last export since a log was opened wrote its file.
  bool Exported() const { return exported_; }
  void DrawGraph() { graph_.DrawGraphChecked(); }
  /// The plot range, as `Sample` values; 0 with no log.
  std::int64_t PlotFrom() const { return range_.From(); }
  std::int64_t PlotTo() const { return range_.To(); }
  LogFiles& Files() { return logFiles_; }
  SampleDetails& Details() { return details_; }
  PresetGraphs& Presets() { return presets_; }
  ScatterWindows& Scatter() { return scatter_; }
  PowerWindows& Power() { return power_; }
  ZoneWindows& Zones() { return zones_; }
  const DrawnGraph& Drawn() const { return drawn_; }
  Selection& Selected() { return selection_; }
  /// The next draw builds the graph in any case.
  void ForceRedraw() { redraw_.Force(); }

  bool DropFile(const std::string& path) override;
  void Form_Activate() override;

 protected:
  void Form_Load() override;
  bool Form_QueryUnload() override { return logFiles_.SaveChangesPrompt(); }
  void Form_Unload() override;
  bool Form_KeyDown(const KeyPress& key) override;
  bool Form_KeyUp(const KeyPress& key) override;

 private:
  // Settings.
  void TakeSettings();
  void GatherSettings();
  void JoinDefinitionPresets();

  // What a load clears and sets up.
  void HideForLoad() override;
  void LoadDatalogFileSuccess(int fileType) override;
  void DrawAfterOpening(int fileType) override;
  void SetFirstRange();
  void SetDataLogViewerCaption();
  bool CanShowDataTags() const;
  void ShowDataTags();
  void FileRenamed() override;
  void RefreshDataTags();

  // The graph's windows, panel and files.
  void GotoSample();
  void ShowAround(std::int32_t sample, bool showPointWidth);
  void mnuFileExport_Click();
  void mnuEditNewPreset_Click();
  void mnuViewZoneInfl_Click();
  void DisplayZoneInfluence();
  bool IsLinkLog() const;

  // Commands.
  std::vector<Command> FileCommands();
  std::vector<Command> ViewCommands();
  std::vector<Command> ScrollCommands();
  std::vector<Command> GraphMenuCommands();
  bool CanZoomIn() const { return graph_.Drawn() && zoom_.CanZoomIn(); }
  bool CanZoomOut() const { return graph_.Drawn() && zoom_.CanZoomOut(); }
  bool CanGoBack() const { return graph_.Drawn() && zoom_.HasPrevious(); }
  std::vector<Command> OutputCommands();
  PrintDetails DetailsToPrint() const;
  void BindCommands();
  void SetUpZoomMenus();
  void ShowAbout();
  void StartSysInfo();
  void ShowNonModal(const std::string& text);

  // What the parts ask for.
  void ZonesEdited() override { FileRenamed(); }
  DrivenRange PlottedIndices() const override;
  int SelectedIndex() const override;
  void SelectIndex(int index) override;
  void SetUpScrollBar() override { scrolling_.SetUp(); }
  void GraphDrawn() override { commands_.Update(); }
  void SampleShown(std::int32_t index) override;
  void ScrollOneStep(int direction) override { scrolling_.ScrollOneStep(direction); }
  void DrawSampleGraph() override { graph_.DrawSampleGraph(); }
  void DrawSampleGraphAfter(const RangeHistory& history) override {
    graph_.DrawSampleGraphAfter(history);
  }
  void DrawGraphChecked() override { graph_.DrawGraphChecked(); }
  bool CurrentRange(clsLogTag& tag) const override;
  void ShowRange(const clsLogTag& tag) override;
  void TagsChanged() override { commands_.Update(); }
  void ShowPoint(std::int32_t sample) override;
  void PlotRun(const SampleRange& range, std::int32_t sample) override;
  void CloseDataLogFile() override { logFiles_.CloseDataLogFile(); }
  void ListsChanged() override;
  void OptionsChanged() override;

  Globals& globals_;
  Services& services_;
  SettingsFile& settingsFile_;
  OpenLog& log_;
  DrawnGraph drawn_;
  Selection selection_;
  RedrawRequest redraw_;
  StatusArea status_{*this, staDataLogViewer, proProgInd};
  PlotRange range_{
      {PlotRangeFrom, updPlotRangeFrom, PlotRangeTo, updPlotRangeTo}, log_, selection_, redraw_};
  const Plotted plotted_{log_, range_, drawn_, selection_};
  SampleDetails details_;
  SampleGraph graph_;
  PointHighlight highlight_;
  Scrolling scrolling_;
  Zoom zoom_;
  GraphMouse mouse_;
  PresetGraphs presets_;
  LogExport export_;
  ChartOutput output_;
  ZoneInfluencePanel zoneInfluence_;
  DefinitionInUse definition_{globals_, services_};
  LogFiles logFiles_{*this, globals_, services_, status_, *this};
  frmDataTags tags_;
  FormCollection<frmNonModalMessage> nonModalMessages_;
  ScatterWindows scatter_;
  PowerWindows power_;
  EcuCommands ecu_;
  ZoneWindows zones_;
  Customising customising_;
  Commands commands_;
  bool blnGotoShowPointWidth_ = false;
  bool exported_ = false;
};

}  // namespace tarnview
