#include <random>

#include "model/Catalogue.h"
#include "scatter/ScatterPoints.h"
#include "support/AddSample.h"
#include "support/Table.h"

namespace tarnview {
namespace {

clsScatterFilter On(int item, double from, double to) { return {to, from, item}; }

clsScatterFilters Filters(std::initializer_list<clsScatterFilter> filters) {
  clsScatterFilters all;
  for (const auto& filter : filters) all.AddDirect(filter);
  return all;
}

/// A log with samples numbered from `first`.
struct Samples {
  Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;

  explicit Samples(int rows, std::int32_t first = 1) {
    log.Clear(catalogue.gcolFixedDataItems, rows);
    for (int row = 0; row < rows; ++row) AddSample(log, {{kSample, first + row}});
  }
  std::vector<std::int32_t> Rows(const clsScatterFilters& filters) const {
    return PassingRows(log, RangeOfFilters(log, filters), filters, [](std::int32_t) {});
  }
};

TEST(ScatterRange, FollowsTheFiltersOnSample) {
  const Samples samples(8000, 100);  // 100 to 8099
  const auto range = [&](const TableRow& row) {
    clsScatterFilters filters;
    for (const std::string& one : SplitAt(row.All(), "; ")) {
      const auto words = Split(one, ' ');  // the item, from, to
      const auto bound = [&](std::size_t n) {
        return words[n] == "-" ? kBoundNotSet : std::stod(words[n]);
      };
      if (words.size() == 3) filters.AddDirect(On(std::stoi(words[0]), bound(1), bound(2)));
    }
    const ScatterRange found = RangeOfFilters(samples.log, filters);
    return std::to_string(found.from) + "-" + std::to_string(found.to) +
           (found.blnHasFilter ? " filtered" : "") + (found.tooWide ? " too wide" : "");
  };
  // Halves go to the even number; what lies beyond an end of the log is that end.
  ExpectTable(range, R"(
none -> 100-8099 too wide | 1 200 5200 -> 200-5200 | 1 200 5201 -> 200-5201 too wide | 1 200.5 300.5 -> 200-300 | 1 6000 - -> 6000-8099 | 1 9000 - -> 100-8099 too wide | 1 - 50 -> 100-8099 too wide
1 5000 -; 1 - 200 -> 5000-8099 | 1 4000 5000; 1 4500 - -> 4500-8099 | 1 700 800; 1 300 400 -> 400-400 | 3 0 - -> 100-8099 filtered
)");
}

TEST(ScatterRange, AFilterOnSampleIsNotTestedSampleBySample) {
  Samples samples(10);
  samples.log.glngDataLog.Set(kSample, 4, 90);  // out of order, yet between the ends
  EXPECT_EQ(samples.Rows(Filters({On(1, 2, 8)})).size(), 7u);
}

/// The rule, told sample by sample.
bool Passes(const OpenLog& log, const clsScatterFilter& filter, int row) {
  const clsLogDataItem& item = log.gcolDataItems->Item(filter.lngDataItemSeq);
  const std::int32_t stored = log.glngDataLog(filter.lngDataItemSeq - 1, row);
  if (item.intType == kListItem) return stored == filter.dblFrom;
  const double x = item.GetRawData(stored);
  if (filter.dblFrom == kBoundNotSet) return x <= filter.dblTo;
  if (filter.dblTo == kBoundNotSet) return x >= filter.dblFrom;
  return x >= filter.dblFrom && x <= filter.dblTo;
}

TEST(ScatterWalk, AgreesWithTheRuleToldSampleBySample) {
  std::mt19937 random(7);
  const auto number = [&](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
  };
  for (int round = 0; round < 300; ++round) {
    Samples samples(number(1, 3000));
    SampleStore& store = samples.log.glngDataLog;
    clsScatterFilters filters;
    for (int n = number(1, 4); n > 0; --n) {
      const int seq = number(2, kColumnCount);
      clsLogDataItem& item = samples.catalogue.gcolFixedDataItems.Item(seq);
      const double kFactors[] = {1, 10, 0.1, 3, -10, 0, 1e-5};
      item.intType = number(0, 2);
      item.dblFactor = kFactors[number(0, 6)];
      item.lngStorageOffset = number(0, 1) * 50;
      const int most = number(0, 3) == 0 ? std::numeric_limits<std::int32_t>::max() : 120;
      if (number(0, 3) > 0)  // else the log does not deliver the item
        for (int row = 0; row < store.Rows(); ++row) store.Set(seq - 1, row, number(0, most));
      // Bounds that are values of the item, so that equality decides.
      const auto bound = [&] {
        return number(0, 2) == 0 ? kBoundNotSet : item.GetRawData(number(0, most));
      };
      filters.AddDirect(On(seq, bound(), bound()));
    }
    std::vector<std::int32_t> expected;
    for (int row = 0; row < store.Rows(); ++row)
      if (std::all_of(filters.begin(), filters.end(),
                      [&](const auto& one) { return Passes(samples.log, one, row); }))
        expected.push_back(row);
    ASSERT_EQ(samples.Rows(filters), expected) << "round " << round;
  }
}

TEST(ScatterWalk, TakesTheValuesOfTheRows) {
  Samples samples(3);
  samples.log.glngDataLog.Set(kLambda, 2, 7);
  const auto& item = samples.catalogue.gcolFixedDataItems.Item(ItemOf(kLambda));
  EXPECT_EQ(ValuesOf(samples.log, ItemOf(kLambda), {0, 2}),
            (std::vector<double>{item.GetRawData(0), item.GetRawData(7)}));
  EXPECT_EQ(ValuesOf(samples.log, ItemOf(kRPM), {1, 2}), (std::vector<double>{0, 0}));
  EXPECT_TRUE(samples.Rows(Filters({On(0, 1, 2)})).empty());
  EXPECT_TRUE(samples.Rows(Filters({On(kColumnCount + 1, 1, 2)})).empty());
}

}  // namespace
}  // namespace tarnview
