#pragma once

#include "desk/Messages.h"
#include "samplegraph/Plotted.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"

namespace tarnview {

/// Widens and narrows the plot range about the selected point, and goes back to the range before.
class Zoom {
 public:
  struct Controls {
    ComboBox& cboZoomAmount;
    CheckBox& chkQuickGraph;
  };
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    virtual void DrawSampleGraph() = 0;
    virtual void DrawGraphChecked() = 0;
  };
  Zoom(const Controls& controls, const Plotted& plotted, Messages& messages,
       MainWindow& mainWindow);

  bool CanZoomIn() const;
  bool CanZoomOut() const { return !range_.IsWholeLog(); }
  /// A graph was drawn before the one on show.
  bool HasPrevious() const { return !drawn_.history.strPlotFromHistory[1].empty(); }
  void cmdZoomIn_Click();
  void cmdZoomOut_Click();
  void cmdZoomFull_Click();
  /// A zoom menu's entry: its amount first goes into the box.
  void SetAmount(int amount);
  void ShowPreviousGraph();

 private:
  std::int32_t Amount() const;
  std::int32_t Centre() const;
  void ClampToLog();
  void ShortenForFullGraph();
  void LeaveAmount();

  Controls controls_;
  const DrawnGraph& drawn_;
  Selection& selection_;
  PlotRange& range_;
  const OpenLog& log_;
  Messages& messages_;
  MainWindow& mainWindow_;
};

}  // namespace tarnview
