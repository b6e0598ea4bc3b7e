#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "model/OpenLog.h"
#include "presets/clsScatterFilter.h"

namespace tarnview {

/// The samples that a scatter graph looks through, and whether they are too many to be drawn.
struct ScatterRange {
  std::int32_t from = 0, to = 0;  ///< `Sample` values, both inclusive
  bool blnHasFilter = false;      ///< a filter on anything but "Sample"
  bool tooWide = false;           ///< more than a graph without a filter shows
};

/// The range of a log that the filters on "Sample" leave. A log must be open.
ScatterRange RangeOfFilters(const OpenLog& log, const clsScatterFilters& filters);

/// Store rows, in order, of the samples in the range that pass every filter but those on "Sample".
/// `examining(row)` is called about 30 times.
std::vector<std::int32_t> PassingRows(const OpenLog& log, const ScatterRange& range,
                                      const clsScatterFilters& filters,
                                      const std::function<void(std::int32_t row)>& examining);

/// The values of an item (intSeq) in those rows.
std::vector<double> ValuesOf(const OpenLog& log, int item, const std::vector<std::int32_t>& rows);

}  // namespace tarnview
