#include "scatter/ScatterPoints.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>

#include "base/Numbers.h"
#include "model/Column.h"
#include "model/LocateSample.h"

namespace tarnview {
namespace {

/// To less From of the widest range that is drawn without a filter.
constexpr std::int64_t kWidestUnfiltered = 5000;
constexpr std::int32_t kReports = 30;
/// Rows that are tested filter by filter, so that each test is one plain loop.
constexpr std::int32_t kBlock = 1024;

using Passes = std::array<unsigned char, kBlock>;

bool IsOnSample(const clsScatterFilter& filter) { return filter.lngDataItemSeq == ItemOf(kSample); }

/// The stored integers that a filter lets through: `count` of them from `first`.
struct StoredRange {
  std::int64_t first = 0, count = 0;
  bool Holds(std::int32_t stored) const { return stored >= first && stored - first < count; }
};

/// The least stored integer for which `reached` holds, one past the greatest where it never does;
/// `reached` must stay true once it is.
template <class Reached>
std::int64_t FirstStored(const Reached& reached) {
  using Limits = std::numeric_limits<std::int32_t>;
  std::int64_t low = Limits::min(), high = std::int64_t{Limits::max()} + 1;
  while (low < high) {
    const std::int64_t middle = low + (high - low) / 2;
    if (reached(static_cast<std::int32_t>(middle)))
      high = middle;
    else
      low = middle + 1;
  }
  return low;
}

/// A value only ever grows, or only ever shrinks, with its stored integer, so bounds on the value
/// are bounds on the integer: found by the value's own arithmetic, they leave one whole-number test
/// for each sample.
StoredRange StoredRangeOf(const clsScatterFilter& filter, const clsLogDataItem& item) {
  const bool list = item.intType == kListItem;
  constexpr double kEndless = std::numeric_limits<double>::infinity();
  double from = filter.dblFrom, to = filter.dblTo;
  // With neither bound set nothing passes: the value is held against the mark of an unset bound.
  if (to == kBoundNotSet && from != kBoundNotSet) to = kEndless;
  if (from == kBoundNotSet) from = -kEndless;
  if (list) from = to = filter.dblFrom;
  const auto value = [&](std::int32_t stored) { return item.GetRawData(stored); };
  std::int64_t first = 0, end = 0;
  if (item.Factor() < 0) {
    first = FirstStored([&](std::int32_t stored) { return value(stored) <= to; });
    end = FirstStored([&](std::int32_t stored) { return value(stored) < from; });
  } else {
    first = FirstStored([&](std::int32_t stored) { return value(stored) >= from; });
    end = FirstStored([&](std::int32_t stored) { return value(stored) > to; });
  }
  return {first, std::max<std::int64_t>(end - first, 0)};
}

/// One filter as the walk needs it.
class ColumnTest {
 public:
  ColumnTest(std::span<const std::int32_t> cells, const StoredRange& range)
      : cells_(cells.data()),
        first_(static_cast<std::uint32_t>(range.first)),
        width_(static_cast<std::uint32_t>(range.count - 1)) {}

  void operator()(std::int32_t begin, std::int32_t count, Passes& passes) const {
    const std::int32_t* cells = cells_ + begin;
    // Counted round from the first that passes, whatever lies below it is above the last.
    for (std::int32_t i = 0; i < count; ++i)
      passes[static_cast<std::size_t>(i)] &=
          static_cast<unsigned char>(static_cast<std::uint32_t>(cells[i]) - first_ <= width_);
  }

 private:
  const std::int32_t* cells_;
  std::uint32_t first_, width_;
};

/// Makes the tests; false where no sample can pass.
bool MakeTests(const OpenLog& log, const clsScatterFilters& filters,
               std::vector<ColumnTest>& tests) {
  for (const clsScatterFilter& filter : filters) {
    if (IsOnSample(filter)) continue;
    const int item = filter.lngDataItemSeq;
    if (item < 1 || item > log.gcolDataItems->Count()) return false;
    const StoredRange range = StoredRangeOf(filter, log.gcolDataItems->Item(item));
    const auto cells = log.glngDataLog.Column(item - 1);
    if (range.count == 0 || (cells.empty() && !range.Holds(0))) return false;
    if (!cells.empty()) tests.emplace_back(cells, range);
  }
  return true;
}

/// Writes the rows from `begin` to `end` - 1 that pass behind `out`; the new end.
std::int32_t* AddPassing(const std::vector<ColumnTest>& tests, std::int32_t begin, std::int32_t end,
                         std::int32_t* out) {
  Passes passes;
  for (; begin < end; begin += kBlock) {
    const std::int32_t count = std::min(end - begin, kBlock);
    passes.fill(1);
    for (const ColumnTest& test : tests) test(begin, count, passes);
    for (std::int32_t i = 0; i < count; ++i) {
      *out = begin + i;
      out += passes[static_cast<std::size_t>(i)];
    }
  }
  return out;
}

std::int32_t RowOf(const OpenLog& log, std::int32_t sample) {
  return LocateSample(log, sample - log.glngFirstSampleTime, sample);
}

}  // namespace

ScatterRange RangeOfFilters(const OpenLog& log, const clsScatterFilters& filters) {
  const std::int32_t first = log.glngFirstSampleTime, last = log.glngLastSampleTime;
  ScatterRange range{first, last};
  for (const clsScatterFilter& filter : filters) {
    if (IsOnSample(filter)) {
      range.from = std::max(range.from, RoundToLong(filter.dblFrom));
      range.to = std::min(range.to, RoundToLong(filter.dblTo));
    } else {
      range.blnHasFilter = true;
    }
  }
  if (range.from > last) range.from = first;
  // This is also how a bound that is not set arrives.
  if (range.to < first) range.to = last;
  range.from = std::min(range.from, range.to);
  range.tooWide = !range.blnHasFilter && std::int64_t{range.to} - range.from > kWidestUnfiltered;
  return range;
}

std::vector<std::int32_t> PassingRows(const OpenLog& log, const ScatterRange& range,
                                      const clsScatterFilters& filters,
                                      const std::function<void(std::int32_t)>& examining) {
  std::vector<ColumnTest> tests;
  const std::int32_t first = RowOf(log, range.from), last = RowOf(log, range.to);
  if (last < first || !MakeTests(log, filters, tests)) return {};
  std::vector<std::int32_t> rows(static_cast<std::size_t>(last - first + 1) +
                                 1);  // the last place is only ever tried
  std::int32_t* end = rows.data();
  const std::int32_t interval = std::max((last - first) / kReports, 1);
  for (std::int32_t row = first; row <= last; row += interval) {
    examining(row);
    end = AddPassing(tests, row, std::min(row + interval, last + 1), end);
  }
  rows.resize(static_cast<std::size_t>(end - rows.data()));
  return rows;
}

std::vector<double> ValuesOf(const OpenLog& log, int item, const std::vector<std::int32_t>& rows) {
  const clsLogDataItem& it = log.gcolDataItems->Item(item);
  const auto cells = log.glngDataLog.Column(item - 1);
  std::vector<double> values(rows.size(), it.GetRawData(0));
  if (cells.empty()) return values;
  std::transform(rows.begin(), rows.end(), values.begin(), [&](std::int32_t row) {
    return it.GetRawData(cells[static_cast<std::size_t>(row)]);
  });
  return values;
}

}  // namespace tarnview
