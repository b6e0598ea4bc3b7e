#include "samplegraph/GraphMouse.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "model/Column.h"
#include "samplegraph/GraphScale.h"

namespace tarnview {
namespace {

/// Gentler than the zoom buttons: three notches halve the range.
constexpr double kZoomOfNotch = 1.26;
/// Store rows from the first to the last of the narrowest range.
constexpr std::int32_t kNarrowest = 2;

}  // namespace

GraphMouse::GraphMouse(const Controls& controls, const Plotted& plotted, PointHighlight& highlight,
                       MainWindow& mainWindow)
    : controls_(controls),
      drawn_(plotted.drawn),
      selection_(plotted.selection),
      range_(plotted.range),
      log_(plotted.log),
      highlight_(highlight),
      mainWindow_(mainWindow) {
  Chart& chart = controls_.chSampleGraph;
  chart.Wheel = [this](double x, double notches) { ZoomAt(x, notches); };
  chart.Band = [this](double x1, double x2) { ShowBand(x1, x2); };
  chart.Pan = [this](double grabbed, double x) { MoveTo(grabbed, x); };
  chart.DblClick = [this] { controls_.cmdZoomFull.Press(); };
  chart.Hover = [this](double x) { PointAt(x); };
  chart.HoverEnd = [this] { PointAway(); };
}

double GraphMouse::TimeOf(std::int32_t index) const {
  return log_.gcolDataItems->Item(ItemOf(kSecs)).GetRawData(log_.glngDataLog(kSecs, index));
}

/// The sample nearest to a time. Where the log's times run backwards somewhere, it is one of the
/// log's all the same.
std::int32_t GraphMouse::IndexAt(double x) const {
  std::int32_t index = log_.glngFirstSample, end = log_.glngLastSample;
  while (index < end) {
    const std::int32_t middle = index + (end - index) / 2;
    if (TimeOf(middle) < x)
      index = middle + 1;
    else
      end = middle;
  }
  if (index == log_.glngFirstSample) return index;
  if (std::abs(TimeOf(index) - x) < std::abs(x - TimeOf(index - 1))) return index;
  return index - 1;
}

std::int32_t GraphMouse::WidestRange() const {
  const std::int32_t wholeLog = log_.glngLastSample - log_.glngFirstSample;
  if (controls_.chkQuickGraph.Value) return wholeLog;
  return std::min(wholeLog, kWidestFullRange);
}

void GraphMouse::ZoomAt(double x, double notches) {
  if (!Drawn() || notches == 0) return;
  const std::int32_t width = drawn_.Width();
  const std::int32_t at = std::clamp(IndexAt(x), drawn_.lngPlotFirstIndex, drawn_.lngPlotLastIndex);
  const std::int32_t widest = WidestRange();
  const double zoomed = width * std::pow(kZoomOfNotch, -notches);
  std::int32_t wanted = RoundToLong(std::min<double>(zoomed, widest));
  if (wanted == width) wanted += notches < 0 ? 1 : -1;
  wanted = std::clamp(wanted, std::min(kNarrowest, widest), widest);
  double share = 0.5;
  if (width > 0) share = static_cast<double>(at - drawn_.lngPlotFirstIndex) / width;
  const std::int32_t first = std::clamp(RoundToLong(at - share * wanted), log_.glngFirstSample,
                                        log_.glngLastSample - wanted);
  ShowRows(first, first + wanted, Move::OneOfMany);
  if (pointing_) PointAt(x);
}

void GraphMouse::MoveTo(double grabbed, double x) {
  if (!Drawn()) return;
  const std::int32_t width = drawn_.lngPlotLastIndex - drawn_.lngPlotFirstIndex;
  const std::int32_t first = std::clamp(drawn_.lngPlotFirstIndex + IndexAt(grabbed) - IndexAt(x),
                                        log_.glngFirstSample, log_.glngLastSample - width);
  ShowRows(first, first + width, Move::OneOfMany);
  if (pointing_) PointAt(grabbed);
}

void GraphMouse::ShowBand(double x1, double x2) {
  if (Drawn()) ShowRows(IndexAt(std::min(x1, x2)), IndexAt(std::max(x1, x2)), Move::Alone);
}

void GraphMouse::ShowRows(std::int32_t first, std::int32_t last, Move move) {
  if (first == drawn_.lngPlotFirstIndex && last == drawn_.lngPlotLastIndex) return;
  range_.SetFrom(log_.Sample(first));
  range_.SetTo(log_.Sample(last));
  // Where numbers are missing from the log, rows are fewer than numbers.
  if (!controls_.chkQuickGraph.Value && range_.Span() > kWidestFullRange)
    range_.SetTo(range_.From() + kWidestFullRange);
  range_.EnsureMinimumPlotRange();
  selection_.KeepWithin(range_.From(), range_.To());
  Draw(move);
}

/// Notches and steps of a drag that follow each other, with no other draw between them, are one
/// move for the history: "Previous Graph" leads back to where the hand began.
void GraphMouse::Draw(Move move) {
  if (move == Move::OneOfMany && drawn_.history == afterMove_) {
    mainWindow_.DrawSampleGraphAfter(beforeMove_);
  } else {
    beforeMove_ = drawn_.history;
    mainWindow_.DrawSampleGraph();
  }
  afterMove_ = move == Move::OneOfMany ? drawn_.history : RangeHistory{};
}

void GraphMouse::PointAt(double x) {
  if (!Drawn()) return;
  pointing_ = true;
  const std::int32_t index =
      std::clamp(IndexAt(x), drawn_.lngPlotFirstIndex, drawn_.lngPlotLastIndex);
  controls_.chSampleGraph.HairLine = TimeOf(index);
  highlight_.LookAt(index);
}

void GraphMouse::PointAway() {
  pointing_ = false;
  controls_.chSampleGraph.HairLine = std::nullopt;
  if (Drawn()) highlight_.LookAt(highlight_.SelectedIndex());
}

}  // namespace tarnview
