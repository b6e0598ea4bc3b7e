#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "power/Smoothing.h"

namespace tarnview {
namespace {

std::string Smoothed(std::int32_t factor) {
  std::vector<PowerPoint> points{{1, 0, 0}, {2, 60, 6}, {3, 0, 0}, {4, 30, 3}, {5, 90, 9}};
  Smooth(points, factor);
  std::string text;
  for (const PowerPoint& p : points) {
    EXPECT_NEAR(p.power, p.torque * 10, 1e-12);
    text += FixedText(p.rpm, 0) + ":" + FixedText(p.power, 2) + " ";
  }
  return text;
}

// The entry behind the last point draws the end of a smoothed curve to it.
TEST(Smoothing, TwoAveragesInWhichThePointBehindTheLastCounts) {
  EXPECT_EQ(Smoothed(0), "1:0.00 2:60.00 3:0.00 4:30.00 5:90.00 ");
  EXPECT_EQ(Smoothed(-2), Smoothed(0));
  EXPECT_EQ(Smoothed(1), "1:30.00 2:20.00 3:30.00 4:40.00 5:60.00 ");
  EXPECT_EQ(Smoothed(2), "1:21.25 2:26.17 3:34.50 4:40.33 5:48.33 ");
  EXPECT_EQ(Smoothed(3), "1:31.50 2:32.62 3:35.10 4:38.60 5:39.25 ");
  EXPECT_EQ(Smoothed(4), "1:36.00 2:36.00 3:36.00 4:37.80 5:38.25 ");
  EXPECT_EQ(Smoothed(2147483647), Smoothed(100));
}

TEST(Smoothing, TheSecondIsAThirdAsWideAndTwoAtLeastFromThreeOn) {
  const std::int32_t kRows[][2] = {{0, 0}, {1, 0}, {2, 1}, {3, 2},  {4, 2},
                                   {6, 2}, {7, 2}, {8, 3}, {10, 3}, {11, 4}};
  for (const auto& [factor, half] : kRows) EXPECT_EQ(SecondHalfWidth(factor), half) << factor;
}

TEST(Smoothing, NoPointsStayNone) {
  std::vector<PowerPoint> none;
  Smooth(none, 7);
  EXPECT_TRUE(none.empty());
}

}  // namespace
}  // namespace tarnview
