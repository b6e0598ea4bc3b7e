#include "samplegraph/PointHighlight.h"

#include <algorithm>

#include "model/Column.h"

namespace tarnview {

PointHighlight::PointHighlight(const Controls& controls, const Plotted& plotted,
                               SampleDetails& details, StatusArea& status, MainWindow& mainWindow)
    : controls_(controls),
      drawn_(plotted.drawn),
      selection_(plotted.selection),
      range_(plotted.range),
      log_(plotted.log),
      details_(details),
      status_(status),
      mainWindow_(mainWindow) {
  controls_.chSampleGraph.PointSelected = [this](int series, int point) {
    chSampleGraph_PointSelected(series, point);
  };
  details_.CurveChosen = [this](int place) { MoveToCurve(place); };
}

void PointHighlight::Note(int intSeries, int lngDataPoint) {
  const auto& headings = drawn_.varChartData.headings;
  const auto place = static_cast<std::size_t>((intSeries - 1) / 2);
  const clsLogDataItem* item = nullptr;
  if (place < headings.size()) item = log_.gcolDataItems->ByShortName(headings[place]);
  int number = ItemOf(kRPM);
  if (item) number = item->intSeq;
  selection_.Select(intSeries, lngDataPoint, number);
}

void PointHighlight::chSampleGraph_PointSelected(int intSeries, int lngDataPoint) {
  Note(intSeries, lngDataPoint);
  ShowSample(std::max(drawn_.IndexOfPoint(lngDataPoint), log_.glngFirstSample));
  const auto& plotted = drawn_.intPlottedItems;
  const auto place = static_cast<std::size_t>((intSeries - 1) / 2);
  if (!plotted.empty()) details_.SelectItem(plotted[std::min(place, plotted.size() - 1)]);
}

void PointHighlight::MoveToCurve(int place) {
  const std::int32_t point = selection_.lngSelectedPoint();
  if (point < 1) return;
  Note(2 * place + 1, point);
  controls_.chSampleGraph.MarkPoint(2 * place + 1, point);
}

void PointHighlight::ShowSample(std::int32_t index) {
  // The last point of a thinned graph may stand for rows beyond the log.
  index = std::min(index, log_.glngLastSample);
  selection_.Highlight(log_.Sample(index));
  LookAt(index);
  mainWindow_.SampleShown(index);
}

bool PointHighlight::CanGoLeft() const {
  return range_.From() > log_.glngFirstSampleTime || selection_.lngSelectedPoint() >= 2;
}

// Compares sample numbers and passes thinning over, on purpose.
bool PointHighlight::CanGoRight() const {
  return range_.From() + selection_.lngSelectedPoint() - 1 < log_.glngLastSampleTime;
}

void PointHighlight::LookAt(std::int32_t index) {
  details_.PopulateSampleListView(index);
  const auto named = [&](Column column) {
    return log_.gcolDataItems->Item(ItemOf(column)).strShortName + ": " +
           log_.FormatDataItem(ItemOf(column), index);
  };
  status_.Say(named(kSample) + ", " + named(kSecs));
}

void PointHighlight::cmdDataPointLeft_Click() {
  if (selection_.lngSelectedPoint() > 1)
    controls_.chSampleGraph.SelectPoint(selection_.intSelectedSeries(),
                                        selection_.lngSelectedPoint() - 1);
  else if (range_.From() > log_.glngFirstSampleTime)
    mainWindow_.ScrollOneStep(-1);
  controls_.chSampleGraph.SetFocus();
}

void PointHighlight::cmdDataPointRight_Click() {
  if (selection_.lngSelectedPoint() < drawn_.lngChartRow - 1)
    controls_.chSampleGraph.SelectPoint(selection_.intSelectedSeries(),
                                        selection_.lngSelectedPoint() + 1);
  else if (range_.To() < log_.glngLastSampleTime)
    mainWindow_.ScrollOneStep(1);
  controls_.chSampleGraph.SetFocus();
}

void PointHighlight::MoveBetweenSeries(int direction) {
  const auto& table = drawn_.varChartData;
  const auto row = static_cast<std::size_t>(selection_.lngSelectedPoint() - 1);
  if (selection_.lngSelectedPoint() < 1 || row >= table.x.size()) return;
  std::vector<std::pair<double, int>> heights;
  for (std::size_t j = 0; j < table.y.size(); ++j)
    heights.emplace_back(table.y[j][row], 2 * static_cast<int>(j) + 1);
  std::stable_sort(heights.begin(), heights.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  const auto found = std::find_if(heights.begin(), heights.end(), [&](const auto& one) {
    return one.second == selection_.intSelectedSeries();
  });
  const auto wanted = (found - heights.begin()) + direction;
  if (found == heights.end() || wanted < 0 || wanted >= static_cast<std::ptrdiff_t>(heights.size()))
    return;
  controls_.chSampleGraph.SelectPoint(heights[static_cast<std::size_t>(wanted)].second,
                                      selection_.lngSelectedPoint());
}

std::int32_t PointHighlight::SelectedIndex() const {
  const std::int32_t index = drawn_.IndexOfPoint(std::max(selection_.lngSelectedPoint(), 1));
  return std::clamp(index, log_.glngFirstSample, log_.glngLastSample);
}

}  // namespace tarnview
