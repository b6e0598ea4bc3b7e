#include "support/Table.h"
#include "zones/RowsAround.h"
#include "zones/ZoneGrid.h"

namespace tarnview {
namespace {

TEST(ZoneGrid, HeadingsTheMAPsBehindThemAndTheFirstCells) {
  std::string told;
  for (const bool aspirated : {true, false})
    for (int row = 1; row <= 6; ++row)
      told += std::string(ZoneRowHeading(aspirated, row)) + " is " +
              std::to_string(RowMAPfromRow(aspirated, row)) + ", ";
  for (int row = 0; row < 6; ++row)
    told += std::to_string(ZoneCell(ZoneGrid::Fuel, row, 0)) + " " +
            std::to_string(ZoneCell(ZoneGrid::Ignition, row, 1)) + " ";
  ExpectTold(
      told + ZoneColumnHeading(0) + " " + ZoneColumnHeading(15),
      R"(30 kPa 100 is 300, 44 kPa 200 is 440, 57 kPa 300 is 570, 70 kPa 400 is 700, 84 kPa 500 is 840, 97 kPa 600 is 960, 20 kPa 100 is 200, 60 kPa 200 is 600, 100 kPa 300 is 1000, 140 kPa 400 is 1400, 180 kPa 500 is 1800, 220 kPa 600 is 2200, 32 129 48 145 64 161 80 177 96 193 112 209 00 75)");
  EXPECT_EQ(RowMAPfromRow(true, 7), 300) << "a row that is none";
}

TEST(ZoneGrid, RowsAroundAMAP) {
  // normally aspirated, MAP in tenths of kPa, sensor, type of tuning, RPM
  ExpectTable(
      [](const TableRow& row) {
        const ZoneRows rows =
            CalcZoneRowBoundaries(row.Int(1), row.Yes(0), row.Text(2), row.Text(3), row.Int(4));
        return std::to_string(rows.lower) + "-" + std::to_string(rows.upper) + " at " +
               std::to_string(rows.lowerMAP) + "-" + std::to_string(rows.upperMAP);
      },
      R"(
yes, 960, NB, Off, 3000 -> 5-6 at 840-960 | yes, 831, NB, Off, 3000 -> 5-6 at 840-960 | yes, 830, NB, Off, 3000 -> 4-5 at 700-840 | yes, 431, NB, Off, 3000 -> 2-3 at 440-570
yes, 430, NB, Off, 2001 -> 2-2 at 440-440 | yes, 430, NB, Off, 2000 -> 1-1 at 300-300 | yes, 5000, NB, Off, 3000 -> 5-6 at 840-960 | yes, -50, NB, Off, 3000 -> 2-2 at 440-440
no, 2190, NB, Off, 3000 -> 5-6 at 1800-2200 | no, 9990, NB, Off, 3000 -> 5-6 at 1800-2200 | no, 599, NB, Off, 3000 -> 2-2 at 600-600 | no, 600, NB, Off, 3000 -> 2-3 at 600-1000
yes, 639, NB+WB, L3, 3000 -> 1-1 at 300-300 | yes, 640, NB+WB, L3, 3000 -> 3-4 at 570-700 | no, 600, NB+WB, L3+L4, 3000 -> 1-1 at 200-200 | yes, 600, NB+WB, Lambda, 3000 -> 3-4 at 570-700
)");
}

TEST(ZoneGrid, HowFarASampleLiesBetweenTwoRows) {
  // six rows, kPa
  ExpectTable(
      [](const TableRow& row) {
        const RowsAround rows = RowsAroundMAP(row.Number(1), row.Yes(0));
        return std::to_string(rows.lower) + "-" + std::to_string(rows.upper) + " " +
               FixedText(rows.up, 3);
      },
      R"(
yes, 0 -> 1-2 0.000 | yes, 30 -> 1-2 0.000 | yes, 43 -> 1-2 1.000 | yes, 44 -> 2-3 0.000 | yes, 56 -> 2-3 1.000 | yes, 57 -> 3-4 0.000 | yes, 69.5 -> 4-5 -0.038 | yes, 70 -> 4-5 0.000 | yes, 83 -> 4-5 1.000 | yes, 84 -> 5-6 0.000 | yes, 95 -> 5-6 0.917 | yes, 99 -> 5-6 1.000 | yes, 219.5 -> 5-6 1.000
no, 0 -> 0-1 0.500 | no, 30 -> 1-2 0.250 | no, 43 -> 1-2 0.575 | no, 44 -> 1-2 0.600 | no, 56 -> 1-2 0.900 | no, 57 -> 1-2 0.925 | no, 69.5 -> 2-3 0.237 | no, 70 -> 2-3 0.250 | no, 83 -> 2-3 0.575 | no, 84 -> 2-3 0.600 | no, 95 -> 2-3 0.875 | no, 99 -> 2-3 0.975 | no, 219.5 -> 5-6 0.975
)");
}

TEST(ZoneGrid, ZoneNumberOfASample) {
  // normally aspirated, kPa, RPM
  ExpectTable(
      [](const TableRow& row) {
        return std::to_string(ZoneNumber(ZoneRowOfSample(row.Yes(0), row.Int(1)), row.Int(2)));
      },
      R"(
yes, 33, 0 -> 100 | yes, 34, 1500 -> 215 | yes, 47, 1999 -> 215 | yes, 48, 2000 -> 320
yes, 88, 7999 -> 675 | yes, 200, 9999 -> 695 | no, 40, 499 -> 100 | no, 41, 500 -> 205
no, 201, 500 -> 605 | no, 200, 500 -> 505 | yes, 33, -1 -> 1 | yes, 33, 100000 -> 11000
)");
  EXPECT_EQ(ZoneColumnOfSample(-1), 0);
  EXPECT_EQ(ZoneColumnOfSample(9999), 15);
}

}  // namespace
}  // namespace tarnview
