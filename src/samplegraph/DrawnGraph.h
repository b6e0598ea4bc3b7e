#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "samplegraph/ChartTable.h"

namespace tarnview {

/// The texts of the range at the last draw ([0]) and before that ([1]; empty until a second range
/// has been drawn).
struct RangeHistory {
  std::array<std::string, 2> strPlotFromHistory;
  std::array<std::string, 2> strPlotToHistory;

  bool operator==(const RangeHistory&) const = default;
};

/// What the Sample Graph on show was made of. SampleGraph writes it; everyone else reads.
struct DrawnGraph {
  RangeHistory history;
  std::vector<int> intPlottedItems;  ///< data items of the checked rows, in list order
  std::vector<int> intDrawnItems;    ///< the same at the last full drawing

  std::int32_t lngPlotFirstIndex = 0;
  std::int32_t lngPlotLastIndex = 0;
  std::int32_t lngPlotSpan =
      2;  ///< last index less first plus 2: rows of an unthinned table with its heading
  std::int32_t intThinStep = 1;
  std::int32_t lngChartRow = 0;  ///< one more than the last row of the table
  ChartTable varChartData;

  std::int64_t lngFixedGraphMax = 0;
  std::int64_t intFixedGraphDivisions = 0;

  /// Width of the range in store rows.
  std::int32_t Width() const { return lngPlotSpan - 2; }
  /// Store index of a point of the chart, from 1.
  std::int32_t IndexOfPoint(std::int32_t point) const {
    return (point - 1) * intThinStep + lngPlotFirstIndex;
  }
};

}  // namespace tarnview
