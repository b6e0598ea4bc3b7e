#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "model/OpenLog.h"

namespace tarnview {

/// What the chart of a Sample Graph receives: rows of samples, an X column (seconds) shared by all
/// items and a Y column for each. Row 0 is the heading row and holds names alone, so that data rows
/// count from 1.
struct ChartTable {
  std::vector<std::string> headings;
  std::vector<double> x;
  std::vector<std::vector<double>> y;  ///< by item, then by row

  double lowestX = 0, highestX = 0;
  double highestY = 0;  ///< never below 0
  double lowestY = 0;   ///< never above 0

  std::int32_t LastRow() const { return static_cast<std::int32_t>(x.size()); }
  /// X of a row from 0; the heading row counts as 0.
  double X(std::int32_t row) const {
    if (row < 1) return 0;
    return x[static_cast<std::size_t>(row - 1)];
  }
};

/// Which samples go into the table.
struct PlotWindow {
  std::int32_t from = 0, to = 0;               ///< `Sample` values
  std::int32_t firstIndex = 0, lastIndex = 0;  ///< store indices
  std::int32_t step = 1;                       ///< every so many store rows one is plotted
};

/// Fills the table. Of "Knock" each row holds the highest value since the row before, so that no
/// knock is lost between two plotted rows. `examining(index)` is called now and then.
ChartTable BuildChartTable(const OpenLog& log, const std::vector<int>& plottedItems,
                           const PlotWindow& window,
                           const std::function<void(std::int32_t index)>& examining);

}  // namespace tarnview
