#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "zones/RowsAround.h"
#include "zones/ZoneGrid.h"

namespace tarnview {
namespace {

TEST(ZoneGrid, CellsOfTheClosedLoopSettings) {
  EXPECT_EQ(ZoneCell(ZoneGrid::Fuel, 5, 0), 112);
  EXPECT_EQ(ZoneCell(ZoneGrid::Ignition, 5, 1), 209);
  EXPECT_EQ(ZoneCell(ZoneGrid::Fuel, 0, 0), 32);
}

TEST(ZoneGrid, HeadingsAndTheMAPsBehindThem) {
  EXPECT_EQ(ZoneRowHeading(true, 6), "97 kPa 600");
  EXPECT_EQ(RowMAPfromRow(true, 6), 960);
  EXPECT_EQ(RowMAPfromRow(true, 7), 300);
  EXPECT_EQ(ZoneRowHeading(false, 3), "100 kPa 300");
  EXPECT_EQ(RowMAPfromRow(false, 3), 1000);
  EXPECT_EQ(ZoneColumnHeading(0), "00");
  EXPECT_EQ(ZoneColumnHeading(15), "75");
}

TEST(ZoneGrid, RowsAroundAMAP) {
  const struct {
    bool normallyAspirated;
    std::int32_t MAP;
    const char* sensor;
    const char* type;
    std::int32_t RPM;
    int lower, upper;
    std::int32_t lowerMAP, upperMAP;
  } cases[] = {
      // clang-format off
      {true, 960, "NB", "Off", 3000, 5, 6, 840, 960},       {true, 831, "NB", "Off", 3000, 5, 6, 840, 960},
      {true, 830, "NB", "Off", 3000, 4, 5, 700, 840},       {true, 431, "NB", "Off", 3000, 2, 3, 440, 570},
      {true, 430, "NB", "Off", 2001, 2, 2, 440, 440},       {true, 430, "NB", "Off", 2000, 1, 1, 300, 300},
      {true, 5000, "NB", "Off", 3000, 5, 6, 840, 960},      {true, -50, "NB", "Off", 3000, 2, 2, 440, 440},
      {false, 2190, "NB", "Off", 3000, 5, 6, 1800, 2200},   {false, 9990, "NB", "Off", 3000, 5, 6, 1800, 2200},
      {false, 599, "NB", "Off", 3000, 2, 2, 600, 600},      {false, 600, "NB", "Off", 3000, 2, 3, 600, 1000},
      {true, 639, "NB+WB", "L3", 3000, 1, 1, 300, 300},     {true, 640, "NB+WB", "L3", 3000, 3, 4, 570, 700},
      {false, 600, "NB+WB", "L3+L4", 3000, 1, 1, 200, 200}, {true, 600, "NB+WB", "Lambda", 3000, 3, 4, 570, 700},
      // clang-format on
  };
  for (const auto& c : cases) {
    const ZoneRows rows =
        CalcZoneRowBoundaries(c.MAP, c.normallyAspirated, c.sensor, c.type, c.RPM);
    EXPECT_TRUE(rows.lower == c.lower && rows.upper == c.upper && rows.lowerMAP == c.lowerMAP &&
                rows.upperMAP == c.upperMAP)
        << c.MAP << ": " << rows.lower << " " << rows.upper << " " << rows.lowerMAP << " "
        << rows.upperMAP;
  }
}

TEST(ZoneGrid, HowFarASampleLiesBetweenTwoRows) {
  std::string told;
  for (const bool six : {true, false}) {
    for (const double kPa : {0., 30., 43., 44., 56., 57., 69.5, 70., 83., 84., 95., 99., 219.5}) {
      const RowsAround rows = RowsAroundMAP(kPa, six);
      told += std::to_string(rows.lower) + "-" + std::to_string(rows.upper) + " " +
              FixedText(rows.up, 3) + (kPa == 57. ? "\n" : " ");
    }
    told += "\n";
  }
  EXPECT_EQ(told, R"(1-2 0.000 1-2 0.000 1-2 1.000 2-3 0.000 2-3 1.000 3-4 0.000
4-5 -0.038 4-5 0.000 4-5 1.000 5-6 0.000 5-6 0.917 5-6 1.000 5-6 1.000 
0-1 0.500 1-2 0.250 1-2 0.575 1-2 0.600 1-2 0.900 1-2 0.925
2-3 0.237 2-3 0.250 2-3 0.575 2-3 0.600 2-3 0.875 2-3 0.975 5-6 0.975 
)");
}

TEST(ZoneGrid, ZoneNumberOfASample) {
  const struct {
    bool normallyAspirated;
    std::int32_t kPa, RPM, zone;
  } cases[] = {
      {true, 33, 0, 100},     {true, 34, 1500, 215}, {true, 47, 1999, 215},
      {true, 48, 2000, 320},  {true, 88, 7999, 675}, {true, 200, 9999, 695},
      {false, 40, 499, 100},  {false, 41, 500, 205}, {false, 201, 500, 605},
      {false, 200, 500, 505}, {true, 33, -1, 1},     {true, 33, 100000, 11000},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ZoneNumber(ZoneRowOfSample(c.normallyAspirated, c.kPa), c.RPM), c.zone)
        << c.kPa << " " << c.RPM;
  EXPECT_EQ(ZoneColumnOfSample(-1), 0);
  EXPECT_EQ(ZoneColumnOfSample(9999), 15);
}

}  // namespace
}  // namespace tarnview
