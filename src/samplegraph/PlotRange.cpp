#include "samplegraph/PlotRange.h"

#include <algorithm>

#include "base/Numbers.h"

namespace tarnview {

PlotRange::PlotRange(const Controls& controls, const OpenLog& log, Selection& selection,
                     RedrawRequest& redraw)
    : controls_(controls), log_(log), selection_(selection), redraw_(redraw) {
  const auto edited = [this] { redraw_.RangeEdited(); };
  controls_.PlotRangeFrom.Change = edited;
  controls_.PlotRangeTo.Change = edited;
  controls_.PlotRangeFrom.LostFocus = [this] { LeaveFrom(); };
  controls_.PlotRangeTo.LostFocus = [this] { LeaveTo(); };
  controls_.updPlotRangeFrom.UpClick = [this] { Step(controls_.PlotRangeFrom, 1); };
  controls_.updPlotRangeFrom.DownClick = [this] { Step(controls_.PlotRangeFrom, -1); };
  controls_.updPlotRangeTo.UpClick = [this] { Step(controls_.PlotRangeTo, 1); };
  controls_.updPlotRangeTo.DownClick = [this] { Step(controls_.PlotRangeTo, -1); };
}

std::int64_t PlotRange::From() const { return StringToLong(controls_.PlotRangeFrom.Text()); }
std::int64_t PlotRange::To() const { return StringToLong(controls_.PlotRangeTo.Text()); }
void PlotRange::SetFrom(std::int64_t sample) {
  controls_.PlotRangeFrom.Text = std::to_string(sample);
}
void PlotRange::SetTo(std::int64_t sample) { controls_.PlotRangeTo.Text = std::to_string(sample); }
void PlotRange::SetFromToFirst() { controls_.PlotRangeFrom.Text = gstrPlotFrom; }
void PlotRange::SetToToLast() { controls_.PlotRangeTo.Text = gstrPlotTo; }

void PlotRange::TakeLog() {
  gstrPlotFrom = std::to_string(log_.glngFirstSampleTime);
  gstrPlotTo = std::to_string(log_.glngLastSampleTime);
  for (UpDown* arrows : {&controls_.updPlotRangeFrom, &controls_.updPlotRangeTo}) {
    arrows->Min = log_.glngFirstSampleTime;
    arrows->Max = log_.glngLastSampleTime;
    arrows->Enabled = true;
  }
}

void PlotRange::Clear() {
  gstrPlotFrom.clear();
  gstrPlotTo.clear();
  controls_.PlotRangeFrom.Text = "";
  controls_.PlotRangeTo.Text = "";
  controls_.updPlotRangeFrom.Enabled = false;
  controls_.updPlotRangeTo.Enabled = false;
}

void PlotRange::CorrectForDraw() {
  if (From() > To()) SetFrom(To() - 1);
  if (Outside(From())) SetFromToFirst();
  if (Outside(To()) || To() == 0) SetToToLast();
}

void PlotRange::EnsureMinimumPlotRange() {
  if (Span() >= 2) return;
  if (To() < log_.glngLastSampleTime - 1)
    SetTo(From() + 2);
  else if (From() > log_.glngFirstSampleTime + 1)
    SetFrom(To() - 2);
}

bool PlotRange::IsWholeLog() const {
  return From() == log_.glngFirstSampleTime && To() == log_.glngLastSampleTime;
}

void PlotRange::LeaveFrom() {
  if (!log_.gblnSamplesLoaded) return;
  if (Outside(From())) SetFromToFirst();
  selection_.Forget();
}

void PlotRange::LeaveTo() {
  if (!log_.gblnSamplesLoaded) return;
  if (Outside(To())) SetToToLast();
  selection_.Forget();
}

void PlotRange::Step(TextBox& box, int by) {
  const std::int64_t sample = StringToLong(box.Text());
  box.Text = std::to_string(
      std::clamp<std::int64_t>(sample + by, log_.glngFirstSampleTime, log_.glngLastSampleTime));
}

bool PlotRange::Outside(std::int64_t sample) const {
  return sample < log_.glngFirstSampleTime || sample > log_.glngLastSampleTime;
}

}  // namespace tarnview
