#pragma once

#include <memory>
#include <string>

#include "app/Customising.h"
#include "app/DefinitionInUse.h"
#include "app/EcuCommands.h"
#include "app/Globals.h"
#include "app/LogLoading.h"
#include "app/LogRoads.h"
#include "app/MainWindowControls.h"
#include "app/MapSaving.h"
#include "app/PowerWindows.h"
#include "app/RecentFiles.h"
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

/// The main window: it puts the parts of the Sample Graph together, opens files, and carries the
/// menus.
class frmDataLogViewer : public MainWindowControls,
                         private SampleGraph::MainWindow,
                         private PointHighlight::MainWindow,
                         private Scrolling::MainWindow,
                         private Zoom::MainWindow,
                         private GraphMouse::MainWindow,
                         private PresetGraphs::MainWindow,
                         private frmDataTags::MainWindow,
                         private ScatterWindows::SampleGraphWindow,
                         private PowerWindows::SampleGraphWindow,
                         private EcuCommands::MainWindow,
                         private Customising::MainWindow,
                         private ZoneWindows::SampleGraphWindow {
 public:
  frmDataLogViewer(Globals& globals, Services& services, SettingsFile& settingsFile);

  /// Opens a file; type 0 is guessed. False: nothing was loaded, and the user was told why.
  bool LoadDataFile(const std::string& path, int fileType) override;
  /// Opens a file as the user does: what does not load as `fileType` (0: guessed) is looked at, and
  /// opened as what it looks like after a question. Where the kind was guessed and nothing loads,
  /// the open log stays.
  bool OpenFile(const std::string& path, int fileType);
  /// Opens a file as what its content is, with no question; what is no log as its extension says.
  bool OpenByContent(const std::string& path);
  /// Opens an entry of the recent list; a `path` is entered first, on top.
  bool OpenRecentlyUsedFile(int index, const std::string& path = "", int fileType = 0);
  /// What a start with a file on the command line does: opens it and draws.
  void OpenFromCommandLine(const std::string& commandLine);
  /// False: the user does not want to lose edited zones.
  bool SaveChangesPrompt() override { return saving_.SaveChangesPrompt(); }

  /// Writes the settings file, where one is kept, with what the window shows now. False: the user
  /// was told.
  bool WriteINIFile() override;

  /// The last export since a log was opened wrote its file.
  bool Exported() const { return exported_; }
  void DrawGraph() { graph_.DrawGraphChecked(); }
  void TellMessage(Message id) { services_.messages.ShowMessage(id); }
  /// The plot range, as `Sample` values; 0 with no log.
  std::int64_t PlotFrom() const { return range_.From(); }
  std::int64_t PlotTo() const { return range_.To(); }
  SampleDetails& Details() { return details_; }
  PresetGraphs& Presets() { return presets_; }
  ScatterWindows& Scatter() { return scatter_; }
  PowerWindows& Power() { return power_; }
  ZoneWindows& Zones() { return zones_; }
  const DrawnGraph& Drawn() const { return drawn_; }
  Selection& Selected() { return selection_; }
  /// The next draw builds the graph in any case.
  void ForceRedraw() { redraw_.Force(); }
  const RecentFiles& Recent() const { return recent_; }

  bool DropFile(const std::string& path) override;
  void Form_Activate() override;

 protected:
  void Form_Load() override;
  bool Form_QueryUnload() override { return SaveChangesPrompt(); }
  void Form_Unload() override;
  bool Form_KeyDown(const KeyPress& key) override;
  bool Form_KeyUp(const KeyPress& key) override;

 private:
  // Settings.
  void TakeSettings();
  void GatherSettings();
  void JoinDefinitionPresets();

  // Opening a file.
  void mnuFileOpen_Click();
  void mnuFileNewLogDescription_Click();
  bool DescribeLog(const std::string& path);
  bool LoadNow(const std::string& path, int fileType);
  bool LoadAs(const std::string& path, LogRoad road);
  enum class Agreed { No, Yes, Otherwise };  ///< the last: the user wants to describe the log
  Agreed AgreesTo(const LogRoad& road, const std::string& path, int chosenType);
  bool TellNothingLoads(const std::string& path, const LoadOutcome& outcome);
  void HideForLoad();
  void LoadDatalogFileSuccess(int fileType);
  void SetFirstRange();
  void SetDataLogViewerCaption();
  bool CanShowDataTags() const;
  void ShowDataTags();
  void FileRenamed();
  void RefreshDataTags();

  // The graph's windows, panel and files.
  void GotoSample();
  void ShowAround(std::int32_t sample, bool showPointWidth);
  void mnuFileExport_Click();
  void mnuEditNewPreset_Click();
  void mnuViewZoneInfl_Click();
  void DisplayZoneInfluence();
  bool IsLinkLog() const;
  int PresetFileType() const;

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
  void CloseDataLogFile() override;
  bool SaveMapFile(const std::string& path) override;
  void Say(const std::string& status) override { status_.Say(status); }
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
  RecentFiles recent_{mnuRecentlyUsed, mnuSepRecentlyUsed};
  MapSaving saving_{globals_, services_, status_, recent_, [this] { FileRenamed(); }};
  DefinitionInUse definition_{globals_, services_};
  LogLoading loading_{globals_, services_, status_, definition_, saving_};
  LogRoads roads_;
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
