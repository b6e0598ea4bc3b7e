#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "power/PowerCurves.h"

namespace tarnview {
namespace {

using Points = std::vector<PowerPoint>;

std::string Printed(const Points& points) {
  std::string text;
  for (const PowerPoint& p : points)
    text += FixedText(p.rpm, 0) + " " + FixedText(p.power, 3) + " " + FixedText(p.torque, 3) + "\n";
  return text;
}

TEST(PowerCurves, OfEqualPeaksTheFirstStandsAndNothingAboveZeroIsNoPeak) {
  const PowerPeaks peaks = PeaksOf({{3000, 90, 100}, {3500, 90, 120}, {3200, -5, 120}});
  EXPECT_EQ(peaks.power, 90);
  EXPECT_EQ(peaks.powerRpm, 3000);
  EXPECT_EQ(peaks.torque, 120);
  EXPECT_EQ(peaks.torqueRpm, 3500);
  EXPECT_EQ(peaks.maxRpm, 3500);
  EXPECT_FALSE(peaks.topSpeed);
  EXPECT_EQ(PeaksOf({{3000, -1, 0}}).powerRpm, 0);
  EXPECT_EQ(PeaksOf({{3000, -1, 0}}).torqueRpm, 0);
}

TEST(PowerCurves, ChangeUnitsOnlyWhereTheyDiffer) {
  const Points points{{5000, 100, 100}};
  EXPECT_EQ(Printed(InUnits(points, true, true)), "5000 100.000 100.000\n");
  EXPECT_EQ(Printed(InUnits(points, false, false)), "5000 100.000 100.000\n");
  EXPECT_EQ(Printed(InUnits(points, true, false)), "5000 74.570 135.700\n");
  EXPECT_EQ(Printed(InUnits(points, false, true)), "5000 134.102 73.692\n");
}

TEST(PowerCurves, AnAverageHoldsWithinTheBenchmarkAlone) {
  const auto averaged = [](Points run, const Points& benchmark) {
    AverageWith(run, benchmark);
    return Printed(run);
  };
  const Points benchmark{{2000, 40, 100}, {3000, 60, 200}};
  EXPECT_EQ(
      averaged({{1999, 50, 90}, {2000, 50, 90}, {2250, 50, 90}, {3000, 50, 90}, {3001, 50, 90}},
               benchmark),
      "1999 50.000 90.000\n2000 45.000 95.000\n2250 47.500 107.500\n3000 55.000 145.000\n3001 "
      "50.000 90.000\n");
  EXPECT_EQ(averaged({{2500, 50, 90}}, {}), "2500 50.000 90.000\n");
  EXPECT_EQ(averaged({{0, 50, 90}}, {{-1, 0, 0}, {1, 0, 0}}), "0 50.000 90.000\n");
  // Neighbours in the file's order: a falling pair holds nothing, and the first rising one counts.
  EXPECT_EQ(averaged({{2500, 50, 90}}, {{3000, 0, 0}, {2000, 0, 0}}), "2500 50.000 90.000\n");
  EXPECT_EQ(averaged({{2500, 50, 90}},
                     {{3000, 9, 9}, {2000, 10, 10}, {3000, 30, 30}, {2000, 1, 1}, {3000, 1, 1}}),
            "2500 35.000 55.000\n");
  EXPECT_EQ(averaged({{2500, 50, 90}}, {{2500, 10, 10}, {2500, 30, 30}}), "2500 30.000 50.000\n");
}

}  // namespace
}  // namespace tarnview
