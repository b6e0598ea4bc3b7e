#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "model/Column.h"
#include "samplegraph/ChartTable.h"

namespace tarnview {
namespace {

class ChartTableTest : public ::testing::Test {
 protected:
  ChartTableTest() {
    log.Clear(catalogue.gcolFixedDataItems, 20);
    for (int row = 0; row < 20; ++row) {
      log.glngDataLog.AddRow();
      log.glngDataLog.Set(kSample, row, row + 1);
      log.glngDataLog.Set(kSecs, row, (row + 1) * 819);
      log.glngDataLog.Set(kRPM, row, 1000 + row);
      log.glngDataLog.Set(kMAP, row, 403);
    }
    log.glngLastSample = 19;
  }
  ChartTable Build(const std::vector<int>& items, const PlotWindow& window) {
    return BuildChartTable(log, items, window,
                           [this](std::int32_t index) { examined.push_back(index); });
  }

  Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
  std::vector<std::int32_t> examined;
};

TEST_F(ChartTableTest, PlotsEveryStepThRowByItsStoreIndex) {
  const ChartTable table = Build({ItemOf(kRPM), ItemOf(kMAP)}, {3, 20, 2, 19, 4});
  // Store rows 4, 8, 12, 16: multiples of the step, not steps from the first row.
  EXPECT_EQ(table.x, (std::vector<double>{0.4095, 0.7371, 1.0647, 1.3923}));
  EXPECT_EQ(table.y[0], (std::vector<double>{10.04, 10.08, 10.12, 10.16}));
  EXPECT_EQ(table.y[1], (std::vector<double>{40.3, 40.3, 40.3, 40.3}));
  EXPECT_EQ(table.headings, (std::vector<std::string>{"RPM", "MAP"}));
  EXPECT_EQ(table.LastRow(), 4);
  EXPECT_EQ(table.X(0), 0);
  EXPECT_EQ(table.X(1), 0.4095);
}

TEST_F(ChartTableTest, AKnockBetweenTwoPlottedRowsShowsAtTheNext) {
  log.glngDataLog.Set(kKnock, 5, 90);
  log.glngDataLog.Set(kKnock, 8, 30);
  log.glngDataLog.Set(kKnock, 13, 70);
  const std::vector<int> knock{ItemOf(kKnock)};
  EXPECT_EQ(Build(knock, {1, 20, 0, 19, 4}).y[0], (std::vector<double>{0, 0, 90, 0, 70}));
  // Unthinned it is the plain value.
  const auto plain = Build(knock, {6, 10, 5, 9, 1}).y[0];
  EXPECT_EQ(plain, (std::vector<double>{90, 0, 0, 30, 0}));
}

TEST_F(ChartTableTest, RowsOutsideTheRangeAreLeftOutAndEndThePeak) {
  log.glngDataLog.Set(kSample, 4, 999);
  log.glngDataLog.Set(kKnock, 4, 90);
  const ChartTable table = Build({ItemOf(kKnock)}, {1, 8, 0, 7, 1});
  EXPECT_EQ(table.y[0], (std::vector<double>(7, 0)));
}

TEST_F(ChartTableTest, TellsTheHighestAndNeverLessThanNothing) {
  const ChartTable table = Build({ItemOf(kRPM)}, {1, 20, 0, 19, 1});
  EXPECT_DOUBLE_EQ(table.highestY, 10.19);
  EXPECT_DOUBLE_EQ(table.lowestX, 0.0819);
  EXPECT_EQ(examined.size(), 20u);
  log.glngDataLog.Set(kIAdv, 1, -50);
  EXPECT_EQ(Build({ItemOf(kIAdv)}, {2, 2, 1, 1, 1}).highestY, 0);
}

}  // namespace
}  // namespace tarnview
