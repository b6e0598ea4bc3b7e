#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "samplegraph/ChartTable.h"

namespace tarnview {

/// What the Sample Graph keeps from one draw to the next.
struct PlotState {
  std::array<std::string, 2> strPlotFromHistory;  ///< From at the last draw, and before that
  std::array<std::string, 2> strPlotToHistory;
  std::vector<int> intPlottedItems;  ///< data items of the checked rows, in list order
  std::vector<int> intDrawnItems;    ///< the same at the last full drawing
  bool blnForceRedraw = false;       ///< the next draw builds even if nothing else changed
  bool blnRangeEdited = false;       ///< the range's text changed since the indices were worked out

  std::int32_t lngPlotFirstIndex = 0;
  std::int32_t lngPlotLastIndex = 0;
  std::int32_t lngPlotSpan = 2;  ///< last index less first plus 2: rows of an unthinned table with its heading
  std::int32_t intThinStep = 1;
  std::int32_t lngChartRow = 0;  ///< one more than the last row of the table
  ChartTable varChartData;

  std::int64_t lngFixedGraphMax = 0;
  std::int64_t intFixedGraphDivisions = 0;

  std::int32_t lngHighlightSample = 0;  ///< `Sample` value of the selected point; 0 for none
  std::int32_t lngSelectedPoint = 0;    ///< row of the table, from 1; 0 for none
  int intSelectedSeries = 0;            ///< the chart's number, 2j + 1 for the item at place j
  int intSelectedItem = 0;              ///< data item of that series
  bool blnSkipPointSelected = false;
  bool blnSkipListSelect = false;

  bool blnIgnoreScroll = false;  ///< the scroll bar is being set from code
  bool blnLongScroll = false;    ///< the log is too long for the plain scroll bar

  /// Width of the range in store rows.
  std::int32_t Width() const { return lngPlotSpan - 2; }
  /// Store index of a point of the chart, from 1.
  std::int32_t IndexOfPoint(std::int32_t point) const { return (point - 1) * intThinStep + lngPlotFirstIndex; }
};

}  // namespace tarnview
