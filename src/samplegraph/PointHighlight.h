#pragma once

#include <functional>

#include "desk/StatusArea.h"
#include "samplegraph/Plotted.h"
#include "samplegraph/SampleDetails.h"
#include "ui/Chart.h"

namespace tarnview {

/// The selected point of the Sample Graph: its sample's values in the list and the status bar, and
/// the walk from point to point and from curve to curve.
class PointHighlight {
 public:
  struct Controls {
    Chart& chSampleGraph;
  };
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    virtual void ScrollOneStep(int direction) = 0;  ///< -1 left, 1 right, stopping at the log's end
    virtual void SampleShown(
        std::int32_t index) = 0;  ///< the store index whose values are on show now
  };
  PointHighlight(const Controls& controls, const Plotted& plotted, SampleDetails& details,
                 StatusArea& status, MainWindow& mainWindow);

  bool CanGoLeft() const;
  bool CanGoRight() const;
  void cmdDataPointLeft_Click();
  void cmdDataPointRight_Click();
  /// To the curve next above (1) or below (-1) at the selected point.
  void MoveBetweenSeries(int direction);
  /// Store index of the selected point.
  std::int32_t SelectedIndex() const;
  /// Column 0 there.
  std::int32_t SelectedSample() const { return log_.Sample(SelectedIndex()); }
  /// The values of a store index in list and status bar; the selected point stays what it is.
  void LookAt(std::int32_t index);

 private:
  /// To a curve at the selected point, whose sample's values and row in the list stay as they are.
  void MoveToCurve(int place);
  void Note(int intSeries, int lngDataPoint);
  void chSampleGraph_PointSelected(int intSeries, int lngDataPoint);
  void ShowSample(std::int32_t index);

  Controls controls_;
  const DrawnGraph& drawn_;
  Selection& selection_;
  const PlotRange& range_;
  const OpenLog& log_;
  SampleDetails& details_;
  StatusArea& status_;
  MainWindow& mainWindow_;
};

}  // namespace tarnview
