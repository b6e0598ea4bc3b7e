#include "samplegraph/Zoom.h"

#include <algorithm>

#include "base/Numbers.h"
#include "samplegraph/GraphScale.h"

namespace tarnview {
namespace {

constexpr std::int32_t kLeastAmount = 2;
constexpr std::int32_t kGreatestAmount = 100;
/// A range narrower than this, To less From, is narrow enough.
constexpr std::int64_t kNarrowestToZoom = 10;

}  // namespace

Zoom::Zoom(const Controls& controls, const Plotted& plotted, Messages& messages,
           MainWindow& mainWindow)
    : controls_(controls),
      drawn_(plotted.drawn),
      selection_(plotted.selection),
      range_(plotted.range),
      log_(plotted.log),
      messages_(messages),
      mainWindow_(mainWindow) {
  controls_.cboZoomAmount.LostFocus = [this] { LeaveAmount(); };
}

std::int32_t Zoom::Amount() const {
  const std::int32_t amount = StringToLong(controls_.cboZoomAmount.Text());
  if (amount < kLeastAmount || amount > kGreatestAmount) return kLeastAmount;
  return amount;
}

void Zoom::LeaveAmount() { SetAmount(Amount()); }
void Zoom::SetAmount(int amount) { controls_.cboZoomAmount.Text = std::to_string(amount); }

std::int32_t Zoom::Centre() const {
  // The selected point's own number, one row further on than its sample: kept as it is.
  std::int32_t index = RoundToLong(drawn_.lngPlotFirstIndex + drawn_.Width() / 2.0);
  if (selection_.lngSelectedPoint() > 0)
    index = selection_.lngSelectedPoint() * drawn_.intThinStep + drawn_.lngPlotFirstIndex;
  return log_.Sample(std::clamp(index, log_.glngFirstSample, log_.glngLastSample));
}

bool Zoom::CanZoomIn() const { return range_.Span() >= kNarrowestToZoom; }

void Zoom::cmdZoomIn_Click() {
  const std::int64_t centre = Centre();
  const std::int64_t half = RoundToLong(drawn_.Width() / (2.0 * Amount()));
  range_.SetFrom(centre - half);
  range_.SetTo(centre + half);
  if (selection_.lngSelectedPoint() > 0) {
    ClampToLog();
    selection_.ForgetPoint();
  }
  range_.EnsureMinimumPlotRange();
  mainWindow_.DrawSampleGraph();
}

void Zoom::cmdZoomOut_Click() {
  const std::int64_t centre = Centre();
  const std::int64_t half = std::int64_t{RoundToLong(drawn_.Width() / 2.0)} * Amount();
  range_.SetFrom(centre - half);
  range_.SetTo(centre + half);
  ClampToLog();
  ShortenForFullGraph();
  mainWindow_.DrawSampleGraph();
}

void Zoom::cmdZoomFull_Click() {
  range_.SetFromToFirst();
  range_.SetToToLast();
  ShortenForFullGraph();
  mainWindow_.DrawSampleGraph();
}

void Zoom::ClampToLog() {
  if (range_.From() < log_.glngFirstSampleTime) range_.SetFromToFirst();
  if (range_.To() > log_.glngLastSampleTime) range_.SetToToLast();
}

void Zoom::ShortenForFullGraph() {
  if (controls_.chkQuickGraph.Value || range_.Span() <= kWidestFullRange) return;
  messages_.ShowMessage(Message::RangeShortened);
  const std::int64_t inward =
      RoundToLong(static_cast<double>(range_.Span() - kWidestFullRange) / 2);
  range_.SetTo(range_.To() - inward);
  range_.SetFrom(range_.From() + inward);
}

void Zoom::ShowPreviousGraph() {
  if (drawn_.history.strPlotFromHistory[1].empty() || drawn_.history.strPlotToHistory[1].empty())
    return;
  selection_.Forget();
  const std::string from = drawn_.history.strPlotFromHistory[1];
  const std::string to = drawn_.history.strPlotToHistory[1];
  range_.SetFrom(StringToLong(from));
  range_.SetTo(StringToLong(to));
  mainWindow_.DrawGraphChecked();
}

}  // namespace tarnview
