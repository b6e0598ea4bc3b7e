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

SampleGraph::SampleGraph(Form& window, const Controls& controls, const Plot& plot,
                         const Surroundings& surroundings, MainWindow& mainWindow)
    : window_(window),
      controls_(controls),
      range_(plot.range),
      drawn_(plot.drawn),
      selection_(plot.selection),
      redraw_(plot.redraw),
      log_(plot.log),
      settings_(surroundings.settings),
      status_(surroundings.status),
      messages_(surroundings.messages),
      mainWindow_(mainWindow) {
  controls_.chkFixY.Click = [this] { chkFixY_Click(); };
  controls_.txtYMax.Change = [this] { redraw_.Force(); };
  controls_.chkQuickGraph.Click = [this] { redraw_.Force(); };
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

void SampleGraph::DrawSampleGraphAfter(const RangeHistory& history) {
  drawn_.history = history;
  redraw_.Force();
  DrawSampleGraph();
}

void SampleGraph::DrawSampleGraph() {
  if (!log_.gblnSamplesLoaded) return;
  const AtWork work(window_, status_);
  window_.host.DoEvents();
  const bool rangeChanged = NoteRange();
  drawn_.intPlottedItems = ItemsOfRows(controls_.lvwSampleDetails, true);
  if (drawn_.intPlottedItems.empty())
    messages_.ShowMessage(Message::NothingChecked);
  else if (MustBuild(rangeChanged))
    Build();
  mainWindow_.SetUpScrollBar();
  controls_.fraPicture.Visible = false;
  controls_.chSampleGraph.Visible = true;
  TakeFocus();
  SelectAgain();
  mainWindow_.GraphDrawn();
  redraw_.Drawn();
}

/// A range box that is left by a key that draws keeps what is selected; one that the user leaves
/// does not.
void SampleGraph::TakeFocus() {
  const std::int32_t highlight = selection_.lngHighlightSample();
  controls_.chSampleGraph.SetFocus();
  selection_.Highlight(highlight);
}

bool SampleGraph::NoteRange() {
  const bool from = Note(drawn_.history.strPlotFromHistory, range_.FromText());
  const bool to = Note(drawn_.history.strPlotToHistory, range_.ToText());
  return from || to;
}

bool SampleGraph::MustBuild(bool rangeChanged) {
  return redraw_.Forced() || rangeChanged || drawn_.intPlottedItems != drawn_.intDrawnItems;
}

void SampleGraph::CountLogLines() {
  if (!redraw_.TakeRangeEdited()) return;
  status_.Say("Counting log lines in graph");
  const auto indexOf = [&](std::int64_t sample) {
    const auto wanted = static_cast<std::int32_t>(sample);
    return LocateSample(log_, wanted - log_.glngFirstSampleTime, wanted);
  };
  drawn_.lngPlotFirstIndex = indexOf(range_.From());
  drawn_.lngPlotLastIndex = indexOf(range_.To());
  drawn_.lngPlotSpan = drawn_.lngPlotLastIndex - drawn_.lngPlotFirstIndex + 2;
}

void SampleGraph::Build() {
  status_.Say("Preparing to draw graph");
  CountLogLines();
  const std::int32_t first = drawn_.lngPlotFirstIndex;
  status_.ShowProgressInStatusBar(std::max(drawn_.lngPlotLastIndex - first, 1));
  drawn_.intThinStep = ThinStep(drawn_.lngPlotSpan, controls_.chkQuickGraph.Value);
  const PlotWindow window{static_cast<std::int32_t>(range_.From()),
                          static_cast<std::int32_t>(range_.To()), first, drawn_.lngPlotLastIndex,
                          drawn_.intThinStep};
  drawn_.varChartData =
      BuildChartTable(log_, drawn_.intPlottedItems, window, [&](std::int32_t index) {
        status_.Progress("Examining log line " + log_.FormatDataItem(ItemOf(kSample), index),
                         index - first);
      });
  drawn_.lngChartRow = drawn_.varChartData.LastRow() + 1;
  status_.ProgressFull();
  controls_.chSampleGraph.SetData(Describe());
  drawn_.intDrawnItems = drawn_.intPlottedItems;
}

ChartDescription SampleGraph::Describe() const {
  const ChartTable& table = drawn_.varChartData;
  ChartDescription chart;
  auto& series = chart.kind.emplace<Curves>().series;
  for (std::size_t j = 0; j < drawn_.intPlottedItems.size(); ++j) {
    const clsLogDataItem& item = log_.gcolDataItems->Item(drawn_.intPlottedItems[j]);
    const Pen pen{item.lngColour, static_cast<int>(item.lngLineStyle),
                  static_cast<int>(item.lngLineWidth * 10)};
    series.push_back({item.intSeq, table.headings[j], table.x, table.y[j], pen});
  }
  chart.x = {table.lowestX, table.highestX, 10, TimeAxisFormat(table.highestX - table.lowestX)};
  VerticalScale scale = ScaleForRange(table.lowestY, table.highestY);
  if (controls_.chkFixY.Value)
    scale = ReachingBelow({drawn_.lngFixedGraphMax, drawn_.intFixedGraphDivisions}, table.lowestY);
  chart.y = {static_cast<double>(scale.min), static_cast<double>(scale.max),
             static_cast<int>(scale.divisions), "#######0"};
  SetGraphColourScheme(chart, settings_.gintGraphColourScheme);
  chart.facts = {{"from", static_cast<long long>(range_.From())},
                 {"to", static_cast<long long>(range_.To())},
                 {"thin_step", drawn_.intThinStep},
                 {"rows", table.LastRow()}};
  return chart;
}

int SampleGraph::PlaceOf(int item) const {
  const auto found = std::find(drawn_.intPlottedItems.begin(), drawn_.intPlottedItems.end(), item);
  if (found == drawn_.intPlottedItems.end()) return 0;
  return static_cast<int>(found - drawn_.intPlottedItems.begin()) + 1;
}

void SampleGraph::SelectAgain() {
  if (controls_.chSampleGraph.Data().Series().empty()) return;
  int place = PlaceOf(selection_.intSelectedItem());
  if (place == 0) place = PlaceOf(ItemOf(kRPM));
  if (place == 0) place = 1;
  std::int32_t point = RoundToLong(drawn_.lngChartRow / 2.0);
  if (selection_.lngHighlightSample() >= 1) {
    const double rows = selection_.lngHighlightSample() -
                        static_cast<double>(log_.Sample(drawn_.lngPlotFirstIndex));
    point = FindChartRowForSample(selection_.lngHighlightSample(), rows / drawn_.intThinStep);
  }
  controls_.chSampleGraph.SelectPoint(2 * (place - 1) + 1, std::max(point, 1));
}

std::int32_t SampleGraph::FindChartRowForSample(std::int32_t lngSample, double estimate) const {
  const auto guess = static_cast<std::int32_t>(
      std::clamp<std::int64_t>(lngSample - range_.From(), 0, kMostSamples));
  const std::int32_t index = LocateSample(log_, guess, lngSample);
  const double wanted =
      log_.gcolDataItems->Item(ItemOf(kSecs)).GetRawData(log_.glngDataLog(kSecs, index));
  const ChartTable& table = drawn_.varChartData;
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
  drawn_.lngFixedGraphMax = scale.max;
  drawn_.intFixedGraphDivisions = scale.divisions;
  controls_.txtYMax.Text = std::to_string(scale.max);
}

void SampleGraph::Clear() {
  drawn_ = {};
  selection_ = {};
  redraw_ = {};
  controls_.chSampleGraph.SetData({});
  controls_.chSampleGraph.Visible = false;
  controls_.fraPicture.Visible = true;
}

void SampleGraph::chkFixY_Click() {
  const bool fixed = controls_.chkFixY.Value;
  controls_.txtYMax.Enabled = fixed;
  controls_.updYMax.Enabled = fixed;
  if (fixed && StringToLong(controls_.txtYMax.Text()) == 0) controls_.txtYMax.Text = "250";
  redraw_.Force();
}

void SampleGraph::StepYMax(int by) {
  const std::int64_t wanted = std::int64_t{StringToLong(controls_.txtYMax.Text())} + by;
  const Limits& limits = kGraphYMaxLimits;
  controls_.txtYMax.Text =
      std::to_string(std::clamp<std::int64_t>(wanted, limits.least, limits.most));
}

}  // namespace tarnview
