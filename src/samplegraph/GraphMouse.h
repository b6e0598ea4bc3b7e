#pragma once

#include "samplegraph/Plotted.h"
#include "samplegraph/PointHighlight.h"
#include "ui/Chart.h"
#include "ui/CheckBox.h"
#include "ui/CommandButton.h"

namespace tarnview {

/// The mouse on the Sample Graph: its wheel zooms, a drag pans or marks a range, a double click
/// shows the whole log, and the list tells the values at the pointer while it is there.
class GraphMouse {
 public:
  struct Controls {
    Chart& chSampleGraph;
    CheckBox& chkQuickGraph;
    CommandButton& cmdZoomFull;
  };
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    virtual void DrawSampleGraph() = 0;
    /// Draws as if that had been drawn last: "Previous Graph" will lead back to it.
    virtual void DrawSampleGraphAfter(const RangeHistory& history) = 0;
  };
  GraphMouse(const Controls& controls, const Plotted& plotted, PointHighlight& highlight,
             MainWindow& mainWindow);

 private:
  enum class Move { Alone, OneOfMany };

  void ZoomAt(double x, double notches);
  void MoveTo(double grabbed, double x);
  void ShowBand(double x1, double x2);
  void ShowRows(std::int32_t first, std::int32_t last, Move move);
  void Draw(Move move);
  void PointAt(double x);
  void PointAway();

  bool Drawn() const { return !controls_.chSampleGraph.Data().Series().empty(); }
  double TimeOf(std::int32_t index) const;
  std::int32_t IndexAt(double x) const;
  std::int32_t WidestRange() const;

  Controls controls_;
  const DrawnGraph& drawn_;
  Selection& selection_;
  PlotRange& range_;
  const OpenLog& log_;
  PointHighlight& highlight_;
  MainWindow& mainWindow_;
  bool pointing_ = false;
  RangeHistory beforeMove_;  ///< where "Previous Graph" leads from a wheel turned on and on, or a
                             ///< graph being drawn along
  RangeHistory afterMove_;
};

}  // namespace tarnview
