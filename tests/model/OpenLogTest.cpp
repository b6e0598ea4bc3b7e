#include "model/Catalogue.h"
#include "model/Column.h"
#include "model/LocateSample.h"
#include "model/OpenLog.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// Samples and their times, the lowest air temperature, what was loaded, rows, tags and z5.
std::string Told(const OpenLog& log) {
  std::string told;
  for (const int number :
       {log.glngFirstSample, log.glngLastSample, log.glngFirstSampleTime, log.glngLastSampleTime,
        log.glngFirstPlotSample, log.glngLowestAirTemp, int{log.gblnSamplesLoaded},
        int{log.gblnZonesLoaded}, int{log.gblnChangesLoaded}, int{log.blnTooLong},
        log.glngDataLog.Rows(), log.gcolLogTags.Count(), int{log.zones.zones[5]}})
    told += std::to_string(number) + " ";
  return told;
}

TEST(OpenLog, ClearDropsTheLog) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
  const std::string none = "0 0 0 0 -1 200 0 0 0 0 0 0 0 ";
  EXPECT_EQ(Told(log), none);
  log.Clear(catalogue.gcolFixedDataItems, 10);
  log.glngDataLog.Set(kAF, log.glngDataLog.AddRow(), 14705);
  EXPECT_EQ(log.FormatDataItem(ItemOf(kAF), 0), "14.70");
  EXPECT_EQ(log.FormatDataItem(ItemOf(kBoost), 0), "");
  log.gcolLogTags.Add(1, 2);
  log.gblnSamplesLoaded = log.gblnZonesLoaded = log.gblnChangesLoaded = log.blnTooLong = true;
  log.glngFirstPlotSample = log.glngFirstSample = log.glngLastSample = 7;
  log.glngFirstSampleTime = log.glngLastSampleTime = log.glngLowestAirTemp = -3;
  log.zones.zones[5] = 1;
  EXPECT_EQ(Told(log), "7 7 -3 -3 7 -3 1 1 1 1 1 1 1 ");
  log.Clear(catalogue.gcolFixedDataItems, 0);
  EXPECT_EQ(Told(log), none);
  EXPECT_EQ(log.glngDataLog.Columns(), gintColumnCount);
}

TEST(LocateSample, GoesUpOrDownFromAGuess) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
  log.Clear(catalogue.gcolFixedDataItems, 10);
  for (const int sample : {10, 11, 14, 15, 16})
    log.glngDataLog.Set(kSample, log.glngDataLog.AddRow(), sample);
  log.glngFirstSample = 1;
  log.glngLastSample = 3;
  // guess, sample
  ExpectTable(
      [&](const TableRow& row) {
        return std::to_string(LocateSample(log, row.Int(0), row.Int(1)));
      },
      R"(
1, 14 -> 2 | 1, 12 -> 2 | 3, 12 -> 1 | 3, 14 -> 2 | 2, 14 -> 2 | -9, 99 -> 3 | 99, 0 -> 1 | 99, 15 -> 3
)");
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
