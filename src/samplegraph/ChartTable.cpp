#include "samplegraph/ChartTable.h"

#include <algorithm>
#include <limits>

#include "base/Numbers.h"
#include "model/Column.h"

namespace tarnview {
namespace {

/// A cell holds a number as its text of 15 digits, so that sums of tenths come out even.
double Cell(double value) { return StringToDouble(NumberText(value)); }

/// How one item's stored integers become heights.
struct Curve {
  int column;
  double factor;
  double displayFactor;

  double Height(std::int32_t stored) const { return stored / factor * displayFactor; }
};

std::vector<Curve> CurvesOf(const std::vector<int>& plottedItems, const clsLogDataItems& items) {
  std::vector<Curve> curves;
  for (int seq : plottedItems) {
    const clsLogDataItem& item = items.Item(seq);
    curves.push_back({seq - 1, item.Factor(), item.dblSampleDisplayFactor});
  }
  return curves;
}

/// About 30 reports in a range, or one for each 50 rows that are plotted.
std::int32_t ReportInterval(const PlotWindow& window) {
  if (window.step >= 2) return window.step * 50;
  return std::max((window.lastIndex - window.firstIndex) / 30, 1);
}

void AddRow(ChartTable& table, const OpenLog& log, const std::vector<Curve>& curves,
            std::int32_t row, std::int32_t peakKnock) {
  const double x = log.gcolDataItems->Item(ItemOf(kSecs)).GetRawData(log.glngDataLog(kSecs, row));
  table.x.push_back(Cell(x));
  table.lowestX = std::min(table.lowestX, x);
  table.highestX = std::max(table.highestX, x);
  for (std::size_t j = 0; j < curves.size(); ++j) {
    const Curve& curve = curves[j];
    const double y =
        curve.column == kKnock ? peakKnock : curve.Height(log.glngDataLog(curve.column, row));
    table.y[j].push_back(Cell(y));
    table.highestY = std::max(table.highestY, y);
    table.lowestY = std::min(table.lowestY, y);
  }
}

}  // namespace

ChartTable BuildChartTable(const OpenLog& log, const std::vector<int>& plottedItems,
                           const PlotWindow& window,
                           const std::function<void(std::int32_t)>& examining) {
  const auto curves = CurvesOf(plottedItems, *log.gcolDataItems);
  ChartTable table;
  for (int seq : plottedItems) table.headings.push_back(log.gcolDataItems->Item(seq).strShortName);
  table.y.resize(plottedItems.size());
  table.lowestX = std::numeric_limits<double>::max();

  const std::int32_t interval = ReportInterval(window);
  const auto knock = log.glngDataLog.Column(kKnock);
  std::int32_t peak = 0;
  for (std::int32_t i = window.firstIndex; i <= window.lastIndex; ++i) {
    if (!knock.empty()) peak = std::max(peak, knock[static_cast<std::size_t>(i)]);
    // The test is on the store index, so the first row of a range need not be plotted.
    if (i % window.step != 0) continue;
    if (interval < 2 || i % interval == 0) examining(i);
    const std::int32_t sample = log.Sample(i);
    if (sample >= window.from && sample <= window.to) AddRow(table, log, curves, i, peak);
    peak = 0;
  }
  if (table.x.empty()) table.lowestX = 0;
  return table;
}

}  // namespace tarnview
