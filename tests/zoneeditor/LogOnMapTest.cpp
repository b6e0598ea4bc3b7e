#include <gtest/gtest.h>

#include <sstream>

#include "model/Catalogue.h"
#include "model/Column.h"
#include "zoneeditor/LogOnMap.h"

namespace tarnview {
namespace {

/// A log of a normally aspirated car.
class LogOnMapTest : public testing::Test {
 protected:
  LogOnMapTest() { Begin(true); }
  void Begin(bool sixRows) {
    log.Clear(catalogue.gcolFixedDataItems, 100);
    log.zones.gblnZoneLayout6 = sixRows;
  }
  /// `count` samples; the ratios in thousandths, MAP in tenths of kPa.
  void Drive(int count, int RPM, int MAP, int airFuel = 0, int target = 0, int knock = 0) {
    for (int i = 0; i < count; ++i) {
      const int row = log.glngDataLog.AddRow();
      log.glngDataLog.Set(kRPM, row, RPM);
      log.glngDataLog.Set(kMAP, row, MAP);
      log.glngDataLog.Set(kAF, row, airFuel);
      log.glngDataLog.Set(kAFTgt, row, target);
      log.glngDataLog.Set(kKnock, row, i == 1 ? knock : 1);
    }
  }
  LogOnMap Read() const { return ReadLogOnMap(log, WholeLog(log)); }
  /// "row,column" of each cell with samples.
  std::string Cells() const {
    const LogOnMap drive = Read();
    std::string cells;
    for (int row = 1; row <= 6; ++row)
      for (int column = 1; column <= 16; ++column)
        if (drive.At(row, column).samples > 0)
          cells += std::to_string(row) + "," + std::to_string(column) + " ";
    return cells;
  }

  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
};

TEST_F(LogOnMapTest, ASampleCountsForTheNearestCell) {
  const struct {
    bool sixRows;
    int RPM, MAP;
    const char* cells;
  } kSamples[] = {
      // clang-format off
      {true, 0, 0, "1,1 "},       {true, 499, 364, "1,1 "},    {true, 500, 366, "2,2 "},   {true, 999, 499, "2,2 "},
      {true, 1000, 500, "3,3 "},  {true, 7499, 629, "3,15 "},  {true, 7500, 630, "4,16 "}, {true, 99999, 764, "4,16 "},
      {true, 500, 766, "5,2 "},   {true, 500, 899, "5,2 "},    {true, 500, 900, "6,2 "},   {true, -9, 99999, "6,1 "},
      {false, 500, 0, "1,2 "},    {false, 500, 399, "1,2 "},   {false, 500, 400, "2,2 "},  {false, 500, 1999, "5,2 "},
      {false, 500, 2000, "6,2 "}, {false, 500, 65000, "6,2 "},
      // clang-format on
  };
  for (const auto& sample : kSamples) {
    Begin(sample.sixRows);
    Drive(1, sample.RPM, sample.MAP);
    EXPECT_EQ(Cells(), sample.cells) << sample.RPM << " at " << sample.MAP;
  }
  Begin(false);
  Drive(1, 3200, 800);
  EXPECT_EQ(PlaceOf(log, 0), (PlaceOnMap{2.5, 6.9}));
}

TEST_F(LogOnMapTest, FewSamplesSayNothingAndNeverZero) {
  Drive(9, 1000, 300, 14700, 14700, 5);
  Drive(10, 2000, 300, 14000, 14000, 7);
  Drive(10, 3000, 300, 15400, 14000, 0);
  Drive(10, 4000, 300, 13300, 14000);
  Drive(9, 5000, 300, 13300, 14000);
  Drive(5, 5000, 300);
  const LogOnMap drive = Read();
  const auto texts = [&](int column) {
    return drive.Text(GridShow::Nothing, 1, column) + "|" +
           drive.Text(GridShow::Visits, 1, column) + "|" + drive.Text(GridShow::Error, 1, column) +
           "|" + drive.Text(GridShow::Knock, 1, column) + "|" + drive.ToolTip(1, column);
  };
  EXPECT_EQ(texts(2), "||||No samples");
  EXPECT_EQ(texts(3), "||||9 samples");
  EXPECT_EQ(texts(5), "|10|0.0|7|10 samples, air/fuel 0.0 %, knock up to 7");
  EXPECT_EQ(texts(7), "|10|+10.0|1|10 samples, air/fuel +10.0 %, knock up to 1");
  EXPECT_EQ(texts(9), "|10|-5.0|1|10 samples, air/fuel -5.0 %, knock up to 1");
  EXPECT_EQ(texts(11), "|14||1|14 samples, knock up to 1") << "nine of them have a ratio";
}

TEST_F(LogOnMapTest, TheSensorThatTheEcuTunesByIsBelieved) {
  Drive(10, 2000, 300, 15400, 14000);
  log.zones.chip = {1.8, MakeDate(2004, 5, 8), 3};
  const auto error = [&](int flags) {
    log.zones.zones[5] = static_cast<std::int16_t>(flags);
    return Read().Text(GridShow::Error, 1, 5);
  };
  EXPECT_EQ(error(16), "+10.0") << "no wide band sensor was logged";
  for (int row = 0; row < 10; ++row) log.glngDataLog.Set(kAuxCF, row, 14700);
  EXPECT_EQ(error(0) + error(16) + error(24), "+10.0+5.0+5.0");
}

TEST_F(LogOnMapTest, ARangeOfSampleNumbersEndsWithTheLog) {
  EXPECT_EQ(RangeOfSamples(log, 1, 9), DrivenRange());
  Drive(10, 2000, 300);
  for (int row = 0; row < 10; ++row) log.glngDataLog.Set(kSample, row, row + 5);
  log.glngLastSample = 9;
  log.glngFirstSampleTime = 5;
  log.glngLastSampleTime = 14;
  EXPECT_EQ(RangeOfSamples(log, 6, 8), (DrivenRange{1, 3}));
  EXPECT_EQ(RangeOfSamples(log, -99, std::int64_t{1} << 40), WholeLog(log));
}

TEST_F(LogOnMapTest, TheNextSampleInACellGoesRound) {
  Drive(2, 1000, 300);
  Drive(2, 2000, 300);
  Drive(1, 1000, 300);
  const struct {
    int first, last, after, next;
  } kSteps[] = {{0, 4, -1, 0}, {0, 4, 0, 1},  {0, 4, 1, 4},  {0, 4, 4, 0},
                {1, 3, -1, 1}, {1, 3, 1, 1},  {0, 99, 4, 0}, {-5, 0, 0, 0},
                {2, 3, 2, -1}, {3, 2, 0, -1}, {0, 4, 99, 0}};
  for (const auto& step : kSteps)
    EXPECT_EQ(NextInCell(log, {step.first, step.last}, 1, 3, step.after), step.next) << step.after;
  EXPECT_EQ(ReadLogOnMap(log, {1, 2}).At(1, 3).samples, 1);
  EXPECT_EQ(ReadLogOnMap(log, {-9, 99}).At(1, 3).samples, 3);
}

TEST_F(LogOnMapTest, LeanCellsAreProposedMoreFuelInSmallSteps) {
  ZoneSheet sheet;
  sheet.normallyAspirated = true;
  for (int zone = 32; zone < 128; ++zone) sheet.Shown(zone) = 100;
  sheet.Shown(ZoneCell(ZoneGrid::Fuel, 0, 10)) = 254;
  Drive(30, 1000, 300, 14560, 14000);  // 4 % lean
  Drive(30, 2000, 300, 15400, 14000);  // 10 % lean
  Drive(30, 3000, 300, 12000, 14000);  // rich
  Drive(29, 4000, 300, 15400, 14000);
  Drive(30, 5000, 300, 15400, 14000);
  const FuelProposal proposal = Propose(Read(), sheet);
  std::string changes;
  for (int column = 1; column <= 16; ++column)
    changes += std::to_string(proposal.At(1, column)) + " ";
  EXPECT_EQ(changes, "0 0 4 0 5 0 -5 0 0 0 1 0 0 0 0 0 ");
  const ZoneSheet after = WithProposal(sheet, proposal);
  EXPECT_EQ(after.Shown(ZoneCell(ZoneGrid::Fuel, 0, 2)), 104);
  EXPECT_EQ(after.Shown(ZoneCell(ZoneGrid::Fuel, 0, 10)), 255);
  EXPECT_EQ(after.Shown(ZoneCell(ZoneGrid::Fuel, 0, 8)), 100);
  EXPECT_EQ(sheet.Shown(ZoneCell(ZoneGrid::Fuel, 0, 2)), 100) << "nothing is applied by itself";
  Drive(30, 0, 960, 15400, 14000);
  EXPECT_EQ(Propose(Read(), sheet).At(6, 1), 5);
  sheet.normallyAspirated = false;
  EXPECT_EQ(Propose(Read(), sheet).At(6, 1), 0) << "blacked out on a turbo chip";
}

}  // namespace
}  // namespace tarnview
