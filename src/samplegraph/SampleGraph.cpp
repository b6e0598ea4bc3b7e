#include "samplegraph/SampleGraph.h"

#include <algorithm>

#include "base/Numbers.h"
#include "desk/ColourScheme.h"
#include "model/Column.h"
#include "model/LocateSample.h"
#include "model/SettingLimits.h"
#include "samplegraph/GraphScale.h"
#include "samplegraph/SampleListView.h"

namespace tarnview {
namespace {

/// A range's end is remembered with the one before it.
bool Note(std::array<std::string, 2>& history, const std::string& text) {
  if (StringToLong(text) == StringToLong(history[0])) return false;
  history[1] = history[0];
  history[0] = text;
  return true;
}

}  // namespace

SampleGraph::SampleGraph(Form& window, const Controls& controls, PlotRange& range, PlotState& plot, const OpenLog& log,
                         const Settings& settings, StatusArea& status, Messages& messages, MainWindow& mainWindow)
    : window_(window),
      controls_(controls),
      range_(range),
      plot_(plot),
      log_(log),
      settings_(settings),
      status_(status),
      messages_(messages),
      mainWindow_(mainWindow) {
  controls_.chkFixY.Click = [this] { chkFixY_Click(); };
  controls_.txtYMax.Change = [this] { plot_.blnForceRedraw = true; };
  controls_.chkQuickGraph.Click = [this] { plot_.blnForceRedraw = true; };
  controls_.updYMax.UpClick = [this] { StepYMax(10); };
  controls_.updYMax.DownClick = [this] { StepYMax(-10); };
}

bool SampleGraph::AnyChecked() const {
  const auto& rows = controls_.lvwSampleDetails.Rows();
  return std::any_of(rows.begin(), rows.end(), [](const auto& row) { return row.checked; });
}

void SampleGraph::DrawGraphChecked() {
  if (!log_.gblnSamplesLoaded) return;
  ApplyFixedGraphMax();
  if (!AnyChecked()) {
    messages_.ShowMessage(Message::NothingChecked);
    return;
  }
  if (!controls_.chkQuickGraph.Value && range_.Span() > kWidestFullRange) {
    messages_.ShowMessage(Message::RangeShortened);
    range_.SetFrom(range_.To() - kWidestFullRange);
  }
  range_.CorrectForDraw();
  range_.EnsureMinimumPlotRange();
  DrawSampleGraph();
}

void SampleGraph::DrawSampleGraph() {
  if (!log_.gblnSamplesLoaded) return;
  const AtWork work(window_, status_);
  window_.host.DoEvents();
  const bool rangeChanged = NoteRange();
  plot_.intPlottedItems = ItemsOfRows(controls_.lvwSampleDetails, true);
  if (plot_.intPlottedItems.empty())
    messages_.ShowMessage(Message::NothingChecked);
  else if (MustBuild(rangeChanged))
    Build();
  mainWindow_.SetUpScrollBar();
  controls_.fraPicture.Visible = false;
  controls_.chSampleGraph.Visible = true;
  TakeFocus();
  SelectAgain();
  mainWindow_.GraphDrawn();
  plot_.blnForceRedraw = false;
}

/// A range box that is left by a key that draws keeps what is selected; one that the user leaves does not.
void SampleGraph::TakeFocus() {
  const std::int32_t highlight = plot_.lngHighlightSample;
  controls_.chSampleGraph.SetFocus();
  plot_.lngHighlightSample = highlight;
}

bool SampleGraph::NoteRange() {
  const bool from = Note(plot_.strPlotFromHistory, range_.FromText());
  const bool to = Note(plot_.strPlotToHistory, range_.ToText());
  return from || to;
}

bool SampleGraph::MustBuild(bool rangeChanged) {
  return plot_.blnForceRedraw || rangeChanged || plot_.intPlottedItems != plot_.intDrawnItems;
}

void SampleGraph::CountLogLines() {
  if (!plot_.blnRangeEdited) return;
  status_.Say("Counting log lines in graph");
  const auto indexOf = [&](std::int64_t sample) {
    const auto wanted = static_cast<std::int32_t>(sample);
    return LocateSample(log_, wanted - log_.glngFirstSampleTime, wanted);
  };
  plot_.lngPlotFirstIndex = indexOf(range_.From());
  plot_.lngPlotLastIndex = indexOf(range_.To());
  plot_.lngPlotSpan = plot_.lngPlotLastIndex - plot_.lngPlotFirstIndex + 2;
  plot_.blnRangeEdited = false;
}

void SampleGraph::Build() {
  status_.Say("Preparing to draw graph");
  CountLogLines();
  const std::int32_t first = plot_.lngPlotFirstIndex;
  status_.ShowProgressInStatusBar(std::max(plot_.lngPlotLastIndex - first, 1));
  plot_.intThinStep = ThinStep(plot_.lngPlotSpan, controls_.chkQuickGraph.Value);
  const PlotWindow window{static_cast<std::int32_t>(range_.From()), static_cast<std::int32_t>(range_.To()), first,
                          plot_.lngPlotLastIndex, plot_.intThinStep};
  plot_.varChartData = BuildChartTable(log_, plot_.intPlottedItems, window, [&](std::int32_t index) {
    status_.Progress("Examining log line " + log_.FormatDataItem(ItemOf(kSample), index), index - first);
  });
  plot_.lngChartRow = plot_.varChartData.LastRow() + 1;
  status_.ProgressFull();
  controls_.chSampleGraph.SetData(Describe());
  plot_.intDrawnItems = plot_.intPlottedItems;
}

ChartDescription SampleGraph::Describe() const {
  const ChartTable& table = plot_.varChartData;
  ChartDescription chart;
  auto& series = chart.kind.emplace<Curves>().series;
  for (std::size_t j = 0; j < plot_.intPlottedItems.size(); ++j) {
    const clsLogDataItem& item = log_.gcolDataItems->Item(plot_.intPlottedItems[j]);
    const Pen pen{item.lngColour, static_cast<int>(item.lngLineStyle), static_cast<int>(item.lngLineWidth * 10)};
    series.push_back({item.intSeq, table.headings[j], table.x, table.y[j], pen});
  }
  chart.x = {table.lowestX, table.highestX, 10, TimeAxisFormat(table.highestX - table.lowestX)};
  const VerticalScale scale = controls_.chkFixY.Value
                                  ? ReachingBelow({plot_.lngFixedGraphMax, plot_.intFixedGraphDivisions}, table.lowestY)
                                  : ScaleForRange(table.lowestY, table.highestY);
  chart.y = {static_cast<double>(scale.min), static_cast<double>(scale.max), static_cast<int>(scale.divisions),
             "#######0"};
  SetGraphColourScheme(chart, settings_.gintGraphColourScheme);
  chart.facts = {{"from", static_cast<long long>(range_.From())},
                 {"to", static_cast<long long>(range_.To())},
                 {"thin_step", plot_.intThinStep},
                 {"rows", table.LastRow()}};
  return chart;
}

int SampleGraph::PlaceOf(int item) const {
  const auto found = std::find(plot_.intPlottedItems.begin(), plot_.intPlottedItems.end(), item);
  return found == plot_.intPlottedItems.end() ? 0 : static_cast<int>(found - plot_.intPlottedItems.begin()) + 1;
}

void SampleGraph::SelectAgain() {
  if (controls_.chSampleGraph.Data().Series().empty()) return;
  int place = PlaceOf(plot_.intSelectedItem);
  if (place == 0) place = PlaceOf(ItemOf(kRPM));
  if (place == 0) place = 1;
  std::int32_t point = RoundToLong(plot_.lngChartRow / 2.0);
  if (plot_.lngHighlightSample >= 1) {
    const double rows = plot_.lngHighlightSample - static_cast<double>(log_.Sample(plot_.lngPlotFirstIndex));
    point = FindChartRowForSample(plot_.lngHighlightSample, rows / plot_.intThinStep);
  }
  controls_.chSampleGraph.SelectPoint(2 * (place - 1) + 1, std::max(point, 1));
}

std::int32_t SampleGraph::FindChartRowForSample(std::int32_t lngSample, double estimate) const {
  const auto guess = static_cast<std::int32_t>(std::clamp<std::int64_t>(lngSample - range_.From(), 0, kMostSamples));
  const std::int32_t index = LocateSample(log_, guess, lngSample);
  const double wanted = log_.gcolDataItems->Item(ItemOf(kSecs)).GetRawData(log_.glngDataLog(kSecs, index));
  const ChartTable& table = plot_.varChartData;
  std::int32_t row = std::clamp(RoundToLong(estimate), 0, table.LastRow());
  if (table.X(row) < wanted) {
    while (row < table.LastRow() && table.X(row) < wanted) ++row;
  } else {
    while (row > 0 && table.X(row) > wanted) --row;
  }
  return row;
}

void SampleGraph::ApplyFixedGraphMax() {
  const VerticalScale scale = ScaleForFixedMax(StringToLong(controls_.txtYMax.Text()));
  plot_.lngFixedGraphMax = scale.max;
  plot_.intFixedGraphDivisions = scale.divisions;
  controls_.txtYMax.Text = std::to_string(scale.max);
}

void SampleGraph::Clear() {
  plot_ = PlotState{};
  plot_.blnRangeEdited = true;
  controls_.chSampleGraph.SetData({});
  controls_.chSampleGraph.Visible = false;
  controls_.fraPicture.Visible = true;
}

void SampleGraph::chkFixY_Click() {
  const bool fixed = controls_.chkFixY.Value;
  controls_.txtYMax.Enabled = fixed;
  controls_.updYMax.Enabled = fixed;
  if (fixed && StringToLong(controls_.txtYMax.Text()) == 0) controls_.txtYMax.Text = "250";
  plot_.blnForceRedraw = true;
}

void SampleGraph::StepYMax(int by) {
  const std::int64_t wanted = std::int64_t{StringToLong(controls_.txtYMax.Text())} + by;
  const Limits& limits = kGraphYMaxLimits;
  controls_.txtYMax.Text = std::to_string(std::clamp<std::int64_t>(wanted, limits.least, limits.most));
}

}  // namespace tarnview
