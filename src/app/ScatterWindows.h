#pragma once

#include <optional>
#include <vector>

#include "app/Globals.h"
#include "app/MainWindowControls.h"
#include "desk/Commands.h"
#include "desk/StatusArea.h"
#include "samplegraph/PlotRange.h"
#include "scatter/frmScatterGraph.h"
#include "ui/FormCollection.h"

namespace tarnview {

/// The open scatter windows: opening them, drawing them after a load, and what they ask of the
/// program.
class ScatterWindows : private frmScatterGraph::MainWindow {
 public:
  /// What it needs of the main window.
  struct SampleGraphWindow {
    virtual ~SampleGraphWindow() = default;
    /// Comes to the front and draws the graph around a sample, in the width of Show Point.
    virtual void ShowPoint(std::int32_t sample) = 0;
    virtual bool WriteINIFile() = 0;
  };
  ScatterWindows(MainWindowControls& controls, Globals& globals, Services& services,
                 const PlotRange& range, StatusArea& status, SampleGraphWindow& mainWindow);

  std::vector<Command> Rows();

  frmScatterGraph& OpenScatterGraph();
  /// Draws the presets that ask for it, each in a window of its own; only where the menu item is
  /// ticked.
  void DrawAutoScatterGraphs();
  /// Every open window lists its presets again.
  void UpdatePresets();
  void LogIsClosing();
  /// Another log is open: each window's items, filters and presets follow it.
  void RefreshDataItems();
  /// Settings or data items have changed: colours, pictures and lists follow.
  void OptionsChanged();
  void UnloadAll() { windows_.UnloadAll(); }

 private:
  frmScatterGraph& NewScatterGraph();
  void mnuFileDrawScatter_Click();

  void ShowPoint(std::int32_t sample) override { mainWindow_.ShowPoint(sample); }
  std::optional<clsScatterFilter> RangeFilter() const override;
  std::vector<int> ListedItems() const override;
  void ScatterPresetsChanged(bool added) override;
  void ScatterGraphClosed(int ID) override { windows_.Remove(ID); }

  MainWindowControls& controls_;
  Globals& globals_;
  Services& services_;
  const PlotRange& range_;
  StatusArea& status_;
  SampleGraphWindow& mainWindow_;
  FormCollection<frmScatterGraph> windows_;
};

}  // namespace tarnview
