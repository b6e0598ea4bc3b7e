#include "model/Catalogue.h"
#include "support/AddSample.h"
#include "support/Table.h"
#include "zoneeditor/LogOnMap.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

/// A log of samples, ratios in thousandths, MAP in tenths of kPa. "10x 2000 300 15400 14000 7" are
/// ten at 2000 RPM with air/fuel ratio, target and, at the second of them, knock.
class Drive {
 public:
  explicit Drive(bool sixRows, const std::string& samples = "") {
    log.Clear(catalogue.gcolFixedDataItems, 100);
    log.zones.gblnZoneLayout6 = sixRows;
    for (const std::string& part : SplitAt(samples, "; ")) Add(part);
  }
  LogOnMap Read() const { return ReadLogOnMap(log, WholeLog(log)); }

  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;

 private:
  void Add(const std::string& part) {
    std::vector<std::string> words = Split(part, ' ');
    words.resize(6, "0");
    for (int i = 0; i < StringToLong(words[0].substr(0, words[0].find('x'))); ++i)
      AddSample(log, {{kSample, log.glngDataLog.Rows() + 5},
                      {kRPM, StringToLong(words[1])},
                      {kMAP, StringToLong(words[2])},
                      {kAF, StringToLong(words[3])},
                      {kAFTgt, StringToLong(words[4])},
                      {kKnock, i == 1 ? StringToLong(words[5]) : 1}});
  }
};

TEST(LogOnMap, ASampleCountsForTheNearestCell) {
  // normally aspirated; RPM and MAP
  ExpectTable(
      [](const TableRow& row) {
        const Drive drive(row.Yes(0), "1x " + row.Text(1));
        std::string cells;
        for (int n = 0; n < kGridRows * kGridColumns; ++n)
          if (drive.Read().At(n / 16 + 1, n % 16 + 1).samples > 0)
            cells += std::to_string(n / 16 + 1) + "," + std::to_string(n % 16 + 1) + " ";
        const PlaceOnMap place = PlaceOf(drive.log, 0);
        return cells + "at " + FixedText(place.row, 3) + "," + FixedText(place.column, 2);
      },
      R"(
yes, 0 0 -> 1,1 at 1.000,1.00 | yes, 499 364 -> 1,1 at 1.492,1.50 | yes, 500 366 -> 2,2 at 1.508,1.50 | yes, 999 499 -> 2,2 at 2.492,2.50 | yes, 1000 500 -> 3,3 at 2.500,2.50 | yes, 7499 629 -> 3,15 at 3.492,15.50
yes, 7500 630 -> 4,16 at 3.500,15.50 | yes, 99999 764 -> 4,16 at 4.492,16.00 | yes, 500 766 -> 5,2 at 4.508,1.50 | yes, 500 899 -> 5,2 at 5.492,1.50 | yes, 500 900 -> 6,2 at 5.500,1.50 | yes, -9 99999 -> 6,1 at 6.000,1.00
no, 500 0 -> 1,2 at 1.000,1.50 | no, 500 399 -> 1,2 at 1.498,1.50 | no, 500 400 -> 2,2 at 1.500,1.50 | no, 500 1999 -> 5,2 at 5.498,1.50 | no, 500 2000 -> 6,2 at 5.500,1.50 | no, 500 65000 -> 6,2 at 5.975,1.50 | no, 3200 800 -> 3,7 at 2.500,6.90
)");
}

/// Few samples say nothing; the error is of those that have a ratio.
TEST(LogOnMap, WhatACellSays) {
  ExpectTable(
      [](const TableRow& row) {
        const LogOnMap drive = Drive(true, row.All()).Read();
        std::string told;
        for (const GridShow show :
             {GridShow::Nothing, GridShow::Visits, GridShow::Error, GridShow::Knock})
          told += drive.Text(show, 1, 5) + "|";
        return told + drive.ToolTip(1, 5);
      },
      R"(
10x 3000 300 15400 14000 -> ||||No samples | 9x 2000 300 14700 14700 5 -> ||||9 samples
10x 2000 300 14000 14000 7 -> |10|0.0|7|10 samples, air/fuel 0.0 %, knock up to 7 | 10x 2000 300 15400 14000 0 -> |10|+10.0|1|10 samples, air/fuel +10.0 %, knock up to 1
10x 2000 300 13300 14000 1 -> |10|-5.0|1|10 samples, air/fuel -5.0 %, knock up to 1 | 9x 2000 300 13300 14000 1; 5x 2000 300 -> |14||1|14 samples, knock up to 1
)");
}

TEST(LogOnMap, TheSensorThatTheEcuTunesByIsBelieved) {
  // z5; the ratio of the wide band sensor, 0 where none was logged
  ExpectTable(
      [](const TableRow& row) {
        Drive drive(true, "10x 2000 300 15400 14000");
        drive.log.zones.chip = {1.8, MakeDate(2004, 5, 8), 3};
        drive.log.zones.zones[5] = static_cast<std::int16_t>(row.Int(0));
        for (int sample = 0; sample < 10 && row.Int(1) > 0; ++sample)
          drive.log.glngDataLog.Set(kAuxCF, sample, row.Int(1));
        return drive.Read().Text(GridShow::Error, 1, 5);
      },
      "16, 0 -> +10.0 | 0, 14700 -> +10.0 | 16, 14700 -> +5.0 | 24, 14700 -> +5.0");
}

TEST(LogOnMap, ARangeOfSampleNumbersEndsWithTheLog) {
  EXPECT_EQ(RangeOfSamples(Drive(true).log, 1, 9), DrivenRange());
  // Sample numbers, of a log from 5 to 14
  ExpectTable(
      [](const TableRow& row) {
        const Drive drive(true, "10x 2000 300");
        const DrivenRange range =
            RangeOfSamples(drive.log, std::stoll(row.Text(0)), std::stoll(row.Text(1)));
        return std::to_string(range.first) + " to " + std::to_string(range.last);
      },
      "6, 8 -> 1 to 3 | 5, 14 -> 0 to 9 | -99, 1099511627776 -> 0 to 9 | 4, 15 -> 0 to 9");
}

TEST(LogOnMap, TheNextSampleInACellGoesRound) {
  // range, sample; the next one in the cell, and how many it has in the range
  ExpectTable(
      [](const TableRow& row) {
        const Drive drive(true, "2x 1000 300; 2x 2000 300; 1x 1000 300");
        const DrivenRange range{row.Int(0), row.Int(1)};
        return std::to_string(NextInCell(drive.log, range, 1, 3, row.Int(2))) + " of " +
               std::to_string(ReadLogOnMap(drive.log, range).At(1, 3).samples);
      },
      R"(
0, 4, -1 -> 0 of 3 | 0, 4, 0 -> 1 of 3 | 0, 4, 1 -> 4 of 3 | 0, 4, 4 -> 0 of 3 | 1, 3, -1 -> 1 of 1 | 1, 3, 1 -> 1 of 1 | 0, 99, 4 -> 0 of 3
-5, 0, 0 -> 0 of 1 | 2, 3, 2 -> -1 of 0 | 3, 2, 0 -> -1 of 0 | 0, 4, 99 -> 0 of 3 | 1, 2, 0 -> 1 of 1 | -9, 99, 0 -> 1 of 3
)");
}

/// Small steps of cells with many samples, never beyond a byte, none where a cell is no zone.
TEST(LogOnMap, LeanCellsAreProposedMoreFuelInSmallSteps) {
  // normally aspirated; samples, of a map of 100 with 254 at 5000 RPM
  ExpectTable(
      [](const TableRow& row) {
        ZoneSheet sheet;
        sheet.normallyAspirated = row.Yes(0);
        for (int zone = 32; zone < 128; ++zone) sheet.Shown(zone) = 100;
        sheet.Shown(ZoneCell(ZoneGrid::Fuel, 0, 10)) = 254;
        const FuelProposal proposal = Propose(Drive(true, row.Text(1)).Read(), sheet);
        return std::to_string(proposal.Cells()) + ": " +
               Changes(sheet, WithProposal(sheet, proposal));
      },
      R"(
yes, 30x 1000 300 14560 14000; 30x 2000 300 15400 14000; 30x 3000 300 12000 14000; 29x 4000 300 15400 14000 -> 3: z34 100>104 z36 100>105 z38 100>95
yes, 30x 5000 300 15400 14000 -> 1: z42 254>255 | yes, 30x 0 960 15400 14000 -> 1: z112 100>105 | no, 30x 0 960 15400 14000 -> 0: 
)");
}

}  // namespace
}  // namespace tarnview
