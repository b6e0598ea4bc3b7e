#include "model/Catalogue.h"
#include "model/Column.h"
#include "model/OpenLog.h"
#include "support/Table.h"

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
  EXPECT_EQ(log.glngDataLog.Columns(), gintColumnCount);
  EXPECT_FALSE(log.gblnSamplesLoaded || log.gblnZonesLoaded);
  EXPECT_EQ(log.glngFirstPlotSample, -1);
  EXPECT_EQ(log.glngLowestAirTemp, kNoAirTemp);
  EXPECT_EQ(log.glngDataLog.Rows() + log.gcolLogTags.Count() + log.zones.zones[5], 0);
  EXPECT_EQ(log.glngFirstSample + log.glngLastSample, 0);
}

TEST(clsLogTags, ValidateTurnsAndCutsToTheLog) {
  ExpectTable(
      [](const TableRow& row) {
        clsLogTags tags;
        tags.Add(20, 30);
        tags.Add(row.Int(0), row.Int(1));
        tags.Validate(10, 100);
        return std::to_string(tags.Item(2).FromSequence) + " to " +
               std::to_string(tags.Item(2).ToSequence);
      },
      R"(
20, 30 -> 20 to 30 | 30, 20 -> 20 to 30 | 0, 15 -> 10 to 15 | 90, 500 -> 90 to 100 | -5, -1 -> 10 to 10 | 300, 200 -> 100 to 100
)");
}

}  // namespace
}  // namespace tarnview
