#pragma once

#include "desk/Messages.h"
#include "desk/StatusArea.h"
#include "model/OpenLog.h"
#include "model/Settings.h"
#include "samplegraph/DrawnGraph.h"
#include "samplegraph/PlotRange.h"
#include "samplegraph/RedrawRequest.h"
#include "samplegraph/Selection.h"
#include "ui/Chart.h"
#include "ui/CheckBox.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/ListView.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"

namespace tarnview {

/// Draws the log as curves over time: from the range, the checked items and the boxes beside them
/// to the chart.
class SampleGraph {
 public:
  struct Controls {
    ListView& lvwSampleDetails;
    CheckBox& chkQuickGraph;
    CheckBox& chkFixY;
    TextBox& txtYMax;
    UpDown& updYMax;
    Chart& chSampleGraph;
    Frame& fraPicture;
  };
  /// What it draws of, and what it keeps from one draw to the next.
  struct Plot {
    const OpenLog& log;
    PlotRange& range;
    DrawnGraph& drawn;
    Selection& selection;
    RedrawRequest& redraw;
  };
  struct Surroundings {
    const Settings& settings;
    StatusArea& status;
    Messages& messages;
  };
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    /// The range or the graph has changed: scroll bars follow it.
    virtual void SetUpScrollBar() = 0;
    /// A graph was drawn: commands that work on it may run.
    virtual void GraphDrawn() = 0;
  };

  SampleGraph(Form& window, const Controls& controls, const Plot& plot,
              const Surroundings& surroundings, MainWindow& mainWindow);

  /// What Draw does: corrects the range, then draws and shows the chart. Message 10 without a
  /// checked item, 1 where the range is too wide to be drawn without Quick Graph.
  void DrawGraphChecked();
  /// Draws without those checks; builds nothing where nothing has changed.
  void DrawSampleGraph();
  /// The same, built anew as if that had been drawn last.
  void DrawSampleGraphAfter(const RangeHistory& history);
  /// There is something to draw.
  bool AnyChecked() const;
  /// A graph of the open log is on show.
  bool Drawn() const {
    return log_.gblnSamplesLoaded && !controls_.chSampleGraph.Data().Series().empty();
  }
  /// Brings the typed maximum onto the scale's steps.
  void ApplyFixedGraphMax();
  /// The table row that shows a sample, walked to from an estimate.
  std::int32_t FindChartRowForSample(std::int32_t lngSample, double estimate) const;
  /// Selects the point of the highlighted sample; without one, the middle.
  void SelectAgain();
  /// Chart away, picture back; nothing drawn, nothing selected.
  void Clear();

 private:
  void TakeFocus();
  bool NoteRange();
  bool MustBuild(bool rangeChanged);
  void CountLogLines();
  void Build();
  ChartDescription Describe() const;
  int PlaceOf(int item) const;
  void chkFixY_Click();
  void StepYMax(int by);

  Form& window_;
  Controls controls_;
  PlotRange& range_;
  DrawnGraph& drawn_;
  Selection& selection_;
  RedrawRequest& redraw_;
  const OpenLog& log_;
  const Settings& settings_;
  StatusArea& status_;
  Messages& messages_;
  MainWindow& mainWindow_;
};

}  // namespace tarnview
