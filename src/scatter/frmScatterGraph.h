#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/ErrorLog.h"
#include "base/FileSystem.h"
#include "desk/ChartOutput.h"
#include "desk/Commands.h"
#include "desk/Messages.h"
#include "desk/StatusArea.h"
#include "model/Catalogue.h"
#include "model/OpenLog.h"
#include "model/Settings.h"
#include "model/clsLogFamilies.h"
#include "presets/clsScatterGraphPreset.h"
#include "samplegraph/PresetList.h"
#include "scatter/DataItemCombo.h"
#include "scatter/PointStyle.h"
#include "scatter/ScatterDrawing.h"
#include "scatter/ScatterFilterList.h"
#include "scatter/ScatterWindowControls.h"

namespace tarnview {

/// Plots one data item against another for the samples that pass its filters. Several may be open
/// at once, each with its own filters and its own copy of what it drew.
class frmScatterGraph : public ScatterWindowControls {
 public:
  /// What it asks of the program.
  struct Surroundings {
    const FileKinds& kinds;
    const Catalogue& catalogue;
    const OpenLog& log;
    Settings& settings;
    clsScatterGraphPresets& presets;
    FileSystem& files;
    ErrorLog& errors;
    Messages& messages;
  };
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    /// Draws the Sample Graph around a sample, in the width of Show Point.
    virtual void ShowPoint(std::int32_t sample) = 0;
    /// The plot range as a filter on "Sample"; nothing where it is the whole log.
    virtual std::optional<clsScatterFilter> RangeFilter() const = 0;
    /// Data items of the rows of the list beside the Sample Graph.
    virtual std::vector<int> ListedItems() const = 0;
    /// A preset has changed: every scatter window lists them again. `added`: the settings are
    /// written too.
    virtual void ScatterPresetsChanged(bool added) = 0;
    virtual void ScatterGraphClosed(int ID) = 0;
  };
  frmScatterGraph(Host& itsHost, const Surroundings& surroundings, MainWindow& mainWindow);

  int ID = 0;  ///< its number among the open scatter windows
  int Cascade =
      0;  ///< how many it opens on top of: each stands a little further down than the last

  /// Before it is shown: the preset (by its place) that it opens with.
  void InitialPresetGraph(int preset) { initialPreset_ = preset; }
  /// Draws without a word where that cannot be done.
  void DrawTheGraphRemotely() { DrawScatter(true); }
  /// Draws what the window is set to; see ScatterDrawing.
  void DrawScatter(bool blnQuiet);

  /// The log is about to go: the graph stays, but nothing more is told of its points.
  void LogIsClosing();
  /// Another log is open: items, filters, presets and details follow it.
  void RefreshDataItems();
  /// Settings or data items have changed: the colours of the graph, the picture and the lists
  /// follow.
  void OptionsChanged();
  /// Lists the presets of the log's family; the selected one stays selected, or the last is.
  void PopulatePresets(bool selectLast = false);
  /// Clicks on the first preset of that name; false if there is none.
  bool ApplyNamed(const std::string& name) { return presets_.ApplyNamed(name); }

  /// The data items of the axes; false, and nothing changes, where one is not offered.
  bool ChooseAxes(int xItem, int yItem);
  /// The item that colours the points, 0 for none; false where it is not offered.
  bool ChooseColourBy(int item) { return colourBy_.SearchImageComboForDataItem(item); }
  PointStyleControls& Style() { return style_; }
  /// What the window is set to, drawn or not.
  ScatterRequest Request() const;
  void AddFilter(const clsScatterFilter& filter) { filters_.AddFilter(filter); }
  const clsScatterFilters& objFilters() const { return filters_.objFilters(); }
  /// `Sample` value of the point selected last; 0 for none.
  std::int32_t lngShowPointSample() const { return lngShowPointSample_; }
  /// The last export wrote its file.
  bool Exported() const { return exported_; }

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  std::vector<Command> CommandRows();
  std::vector<Command> OutputCommands();
  void BindControls();
  int FileType() const;
  int Family() const { return around_.kinds.gcolLogFamilies.FirstLogFamily(FileType()); }
  void SetCaption();
  std::string AxesOnShow() const;
  void MoveDown(int steps);
  void ShowBackgroundPicture();
  void Recolour();

  /// `quiet`: nothing is said of an item that is not offered.
  void SelectPreset(const clsScatterGraphPreset& preset, bool quiet);
  void TakeWhatIsShown(clsScatterGraphPreset& preset) const;
  void mnuEditUpdatePreset_Click();
  void mnuEditNewPreset_Click();

  void chScatterGraph_PointSelected(int point);
  void PopulateSampleListViewFromSample(std::int32_t index);
  void cmdShowPoint_Click();
  void ShowSampleDetails(bool show);
  void mnuFileExport_Click();
  void ExportGraph(const std::string& strFile);
  PrintDetails DetailsForPrint() const;

  Surroundings around_;
  MainWindow& mainWindow_;
  StatusArea status_{*this, staScatterGraph, prgProgInd};
  DataItemCombo xAxis_{cboXAxis}, yAxis_{cboYAxis}, colourBy_{cboColourBy};
  clsLogDataItem noItem_;  ///< the first entry of cboColourBy
  PointStyleControls style_;
  ScatterFilterList filters_;
  PresetList<clsScatterGraphPresets> presets_;
  ScatterDrawing drawing_;
  ChartOutput output_;
  Commands commands_;
  int initialPreset_ = 0;
  std::int32_t lngShowPointSample_ = 0;
  bool blnShowSampleDetails_ = true;
  bool exported_ = false;
};

}  // namespace tarnview
