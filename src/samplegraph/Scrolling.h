#pragma once

#include "samplegraph/CLongScroll.h"
#include "samplegraph/Plotted.h"
#include "ui/ScrollBar.h"

namespace tarnview {

/// From so many rows on (by the last store index) the long scroll bar serves.
inline constexpr std::int32_t kLongScrollFrom = 32701;

/// Moves the plot range along the log. The thumb of the bar is the middle of the range, as a store
/// index.
class Scrolling {
 public:
  struct Controls {
    ScrollBar& hsbGraphScroll;
    ScrollBar& hsbGraphScrollLarge;
  };
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    virtual void DrawSampleGraph() = 0;
  };
  Scrolling(const Controls& controls, const Plotted& plotted, MainWindow& mainWindow);

  /// A new log: which bar serves, and both at rest.
  void TakeLog();
  void LocateSampleOnGraph();
  /// After a draw: limits, steps and thumb from the range.
  void SetUp();
  void Disable();

  bool CanGoLeft() const { return Read().value != Read().min; }
  bool CanGoRight() const { return Read().value != Read().max; }
  void ScrollStart();
  void ScrollFinish();
  void PageLeft();
  void PageRight();
  void ScrollLeft();
  void ScrollRight();
  /// One small step, or to the end: -1 left, 1 right.
  void ScrollOneStep(int direction);

 private:
  /// The bar in use, long or plain.
  struct Bar {
    std::int32_t min, max, small, large, value;
  };
  Bar Read() const;
  void MoveTo(std::int64_t value);
  void Moved();
  void ShowShare(std::int32_t large, std::int32_t way);

  Controls controls_;
  const DrawnGraph& drawn_;
  Selection& selection_;
  PlotRange& range_;
  const OpenLog& log_;
  MainWindow& mainWindow_;
  CLongScroll objGraphScrollLarge_;
  bool blnIgnoreScroll_ = false;  ///< the scroll bar is being set from code
  bool blnLongScroll_ = false;    ///< the log is too long for the plain scroll bar
};

}  // namespace tarnview
