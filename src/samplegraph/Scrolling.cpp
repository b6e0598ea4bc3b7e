#include "samplegraph/Scrolling.h"

#include <algorithm>

#include "base/Numbers.h"

namespace tarnview {

Scrolling::Scrolling(const Controls& controls, const Plotted& plotted, MainWindow& mainWindow)
    : controls_(controls),
      drawn_(plotted.drawn),
      selection_(plotted.selection),
      range_(plotted.range),
      log_(plotted.log),
      mainWindow_(mainWindow) {
  objGraphScrollLarge_.Client(&controls_.hsbGraphScrollLarge);
  controls_.hsbGraphScroll.Change = [this] { Moved(); };
  objGraphScrollLarge_.Change = [this] { Moved(); };
  controls_.hsbGraphScrollLarge.Visible = false;
  Disable();
}

void Scrolling::TakeLog() {
  blnLongScroll_ = log_.glngLastSample >= kLongScrollFrom;
  controls_.hsbGraphScroll.Visible = !blnLongScroll_;
  controls_.hsbGraphScrollLarge.Visible = blnLongScroll_;
  controls_.hsbGraphScroll.Enabled = true;
  controls_.hsbGraphScrollLarge.Enabled = true;
  LocateSampleOnGraph();
}

void Scrolling::LocateSampleOnGraph() {
  blnIgnoreScroll_ = true;
  for (auto* property : {&controls_.hsbGraphScroll.Min, &controls_.hsbGraphScroll.Max,
                         &controls_.hsbGraphScroll.LargeChange,
                         &controls_.hsbGraphScroll.SmallChange, &controls_.hsbGraphScroll.Value})
    *property = 1;
  objGraphScrollLarge_.Min(1);
  objGraphScrollLarge_.Max(1);
  objGraphScrollLarge_.LargeChange = 1;
  objGraphScrollLarge_.SmallChange = 1;
  objGraphScrollLarge_.value(1);
  blnIgnoreScroll_ = false;
}

void Scrolling::SetUp() {
  const std::int32_t width = drawn_.Width();
  const std::int32_t min = RoundToLong(width / 2.0);
  const std::int32_t max = RoundToLong(log_.glngLastSample - width / 2.0);
  std::int32_t large = width;
  if (range_.Span() < 1) large = 1;
  const std::int32_t small = std::max(RoundToLong(large / 10.0), 1);
  const std::int32_t value = RoundToLong(width / 2.0 + drawn_.lngPlotFirstIndex);
  blnIgnoreScroll_ = true;
  if (blnLongScroll_) {
    objGraphScrollLarge_.Min(min);
    objGraphScrollLarge_.Max(max);
    objGraphScrollLarge_.LargeChange = large;
    objGraphScrollLarge_.SmallChange = small;
    objGraphScrollLarge_.value(value);
    ShowShare(large, max - min);
  } else {
    controls_.hsbGraphScroll.Min = min;
    controls_.hsbGraphScroll.Max = max;
    controls_.hsbGraphScroll.LargeChange = large;
    controls_.hsbGraphScroll.SmallChange = small;
    controls_.hsbGraphScroll.Value = value;
  }
  blnIgnoreScroll_ = false;
}

/// The thumb of the long bar is as long, against its way, as that of the plain one.
void Scrolling::ShowShare(std::int32_t large, std::int32_t way) {
  ScrollBar& bar = controls_.hsbGraphScrollLarge;
  const double travel = bar.Max() - bar.Min();
  double page = travel;
  if (way > 0) page = std::min(large * travel / way, travel);
  // More than the small step, from which the bar could not tell it.
  bar.LargeChange = std::max(RoundToLong(page), bar.SmallChange() + 1);
}

void Scrolling::Disable() {
  controls_.hsbGraphScroll.Enabled = false;
  controls_.hsbGraphScrollLarge.Enabled = false;
}

Scrolling::Bar Scrolling::Read() const {
  if (blnLongScroll_)
    return {objGraphScrollLarge_.Min(), objGraphScrollLarge_.Max(),
            objGraphScrollLarge_.SmallChange, objGraphScrollLarge_.LargeChange,
            objGraphScrollLarge_.value()};
  const ScrollBar& bar = controls_.hsbGraphScroll;
  return {bar.Min, bar.Max, bar.SmallChange, bar.LargeChange, bar.Value};
}

void Scrolling::MoveTo(std::int64_t value) {
  const auto wanted = static_cast<std::int32_t>(value);
  if (wanted == Read().value) return;
  if (blnLongScroll_)
    objGraphScrollLarge_.value(wanted);
  else
    controls_.hsbGraphScroll.Value = wanted;
}

void Scrolling::Moved() {
  if (blnIgnoreScroll_ || !log_.gblnSamplesLoaded) return;
  const std::int32_t width = drawn_.Width();
  const std::int32_t half = RoundToLong(width / 2.0);
  // A thumb held while the graph was zoomed may be let go where the bar does not reach any more.
  const Bar bar = Read();
  const std::int32_t middle =
      std::clamp(bar.value, std::min(bar.min, bar.max), std::max(bar.min, bar.max));
  range_.SetFrom(log_.Sample(std::max(middle - half, 0)));
  range_.SetTo(log_.Sample(std::min(middle + half, log_.glngLastSample)));
  if (range_.From() < log_.glngFirstSampleTime) {
    range_.SetFromToFirst();
    range_.SetTo(range_.From() + width);
  }
  if (range_.To() > log_.glngLastSampleTime) {
    range_.SetToToLast();
    range_.SetFrom(range_.To() - width);
  }
  selection_.KeepWithin(range_.From(), range_.To());
  mainWindow_.DrawSampleGraph();
}

void Scrolling::ScrollStart() { MoveTo(Read().min); }
void Scrolling::ScrollFinish() { MoveTo(Read().max); }

void Scrolling::PageLeft() {
  const Bar bar = Read();
  MoveTo(std::max<std::int64_t>(std::int64_t{bar.value} - bar.large, bar.min));
}

void Scrolling::PageRight() {
  const Bar bar = Read();
  MoveTo(std::min<std::int64_t>(std::int64_t{bar.value} + bar.large, bar.max));
}

void Scrolling::ScrollLeft() { ScrollOneStep(-1); }
void Scrolling::ScrollRight() { ScrollOneStep(1); }

void Scrolling::ScrollOneStep(int direction) {
  const Bar bar = Read();
  if (direction < 0)
    MoveTo(std::max<std::int64_t>(std::int64_t{bar.value} - bar.small, bar.min));
  else
    MoveTo(std::min<std::int64_t>(std::int64_t{bar.value} + bar.small, bar.max));
}

}  // namespace tarnview
