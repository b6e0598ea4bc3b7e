#pragma once

#include <cstdint>
#include <string>

#include "model/OpenLog.h"
#include "samplegraph/RedrawRequest.h"
#include "samplegraph/Selection.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"

namespace tarnview {

/// The range that is plotted: two `Sample` values in two boxes, with arrows beside them.
class PlotRange {
 public:
  struct Controls {
    TextBox& PlotRangeFrom;
    UpDown& updPlotRangeFrom;
    TextBox& PlotRangeTo;
    UpDown& updPlotRangeTo;
  };
  PlotRange(const Controls& controls, const OpenLog& log, Selection& selection,
            RedrawRequest& redraw);

  std::int64_t From() const;
  std::int64_t To() const;
  std::int64_t Span() const { return To() - From(); }
  void SetFrom(std::int64_t sample);
  void SetTo(std::int64_t sample);
  /// To the first or last sample of the log, as text.
  void SetFromToFirst();
  void SetToToLast();
  std::string FromText() const { return controls_.PlotRangeFrom.Text; }
  std::string ToText() const { return controls_.PlotRangeTo.Text; }

  /// The log's first and last `Sample` as text, which a range outside it falls back on.
  std::string gstrPlotFrom;
  std::string gstrPlotTo;

  /// A log is loaded: limits of the arrows and the texts above.
  void TakeLog();
  /// No log.
  void Clear();

  /// Brings a range as it was typed into the log; From beyond the log's end goes back to its start.
  void CorrectForDraw();
  /// A range narrower than two samples grows, to the right where there is room.
  void EnsureMinimumPlotRange();
  bool IsWholeLog() const;

 private:
  void LeaveFrom();
  void LeaveTo();
  void Step(TextBox& box, int by);
  bool Outside(std::int64_t sample) const;

  Controls controls_;
  const OpenLog& log_;
  Selection& selection_;
  RedrawRequest& redraw_;
};

}  // namespace tarnview
