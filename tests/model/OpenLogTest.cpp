#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "model/Column.h"
#include "model/OpenLog.h"

namespace tarnview {
namespace {

TEST(OpenLog, ClearDropsTheLog) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
  log.Clear(catalogue.gcolFixedDataItems, 10);
  log.glngDataLog.Set(kAF, log.glngDataLog.AddRow(), 14705);
  EXPECT_EQ(log.FormatDataItem(ItemOf(kAF), 0), "14.70");
  EXPECT_EQ(log.FormatDataItem(ItemOf(kBoost), 0), "");

  log.gcolLogTags.Add(1, 2);
  log.gblnSamplesLoaded = log.gblnZonesLoaded = true;
  log.glngFirstPlotSample = log.glngFirstSample = log.glngLastSample = 7;
  log.glngLowestAirTemp = -3;
  log.zones.zones[5] = 1;
  log.Clear(catalogue.gcolFixedDataItems, 0);
  EXPECT_EQ(log.glngDataLog.Rows(), 0);
  EXPECT_EQ(log.glngDataLog.Columns(), gintColumnCount);
  EXPECT_EQ(log.gcolLogTags.Count(), 0);
  EXPECT_FALSE(log.gblnSamplesLoaded || log.gblnZonesLoaded);
  EXPECT_EQ(log.glngFirstPlotSample, -1);
  EXPECT_EQ(log.glngFirstSample + log.glngLastSample, 0);
  EXPECT_EQ(log.glngLowestAirTemp, kNoAirTemp);
  EXPECT_EQ(log.zones.zones[5], 0);
}

TEST(clsLogTags, ValidateTurnsAndCutsToTheLog) {
  struct Row {
    std::int32_t from, to, wantedFrom, wantedTo;
  };
  const Row rows[] = {{20, 30, 20, 30},   {30, 20, 20, 30}, {0, 15, 10, 15},
                      {90, 500, 90, 100}, {-5, -1, 10, 10}, {300, 200, 100, 100}};
  clsLogTags tags;
  for (const Row& row : rows) tags.Add(row.from, row.to);
  tags.Validate(10, 100);
  for (int n = 1; n <= tags.Count(); ++n) {
    EXPECT_EQ(tags.Item(n).FromSequence, rows[n - 1].wantedFrom);
    EXPECT_EQ(tags.Item(n).ToSequence, rows[n - 1].wantedTo);
  }
}

}  // namespace
}  // namespace tarnview
