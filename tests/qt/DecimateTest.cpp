#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "qt/chart/Decimate.h"

namespace tarnview {
namespace {

TEST(DecimateTest, FewPointsStayAsTheyAre) {
  const Polyline line = Decimate({0, 1, 2}, {5, 6, 7}, 0, 2, 100);
  EXPECT_THAT(line.x, testing::ElementsAre(0, 1, 2));
  EXPECT_THAT(line.y, testing::ElementsAre(5, 6, 7));
}

TEST(DecimateTest, OfEachColumnFirstLowestHighestAndLastStay) {
  // Two columns, 0 to 1 and 1 to 2, with five points in each.
  const Polyline line =
      Decimate({0, .2, .4, .6, .8, 1, 1.2, 1.4, 1.6, 1.8}, {3, 9, 5, 1, 4, 7, 7, 7, 7, 7}, 0, 2, 2);
  EXPECT_THAT(line.y, testing::ElementsAre(3, 9, 1, 4, 7, 7));
  EXPECT_THAT(line.x, testing::ElementsAre(0, .2, .6, .8, 1, 1.8));
}

TEST(DecimateTest, AnyLineKeepsItsExtremesInItsOrderWithinFourPointsAColumn) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> value(-1000, 1000);
  for (const int count : {5000, 300000}) {
    std::vector<double> x, y;
    for (int i = 0; i < count; ++i) {
      x.push_back(i);
      y.push_back(value(random));
    }
    // The range begins and ends within the line: what lies outside is one run at each side.
    const Polyline line = Decimate(x, y, count * 0.1, count * 0.9, 640);
    EXPECT_LE(line.x.size(), 4u * 642);
    EXPECT_TRUE(std::is_sorted(line.x.begin(), line.x.end()));
    EXPECT_EQ(*std::max_element(line.y.begin(), line.y.end()),
              *std::max_element(y.begin(), y.end()));
    EXPECT_EQ(*std::min_element(line.y.begin(), line.y.end()),
              *std::min_element(y.begin(), y.end()));
  }
}

TEST(DecimateTest, OddInputIsHarmless) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(Decimate({}, {}, 0, 1, 10).x.empty());
  EXPECT_EQ(Decimate({1, 2}, {1, 2}, 5, 5, 10).x.size(), 2u);
  const std::vector<double> holes(100, none);
  EXPECT_LE(Decimate(holes, holes, 0, 1, 1).x.size(), 100u);
}

}  // namespace
}  // namespace tarnview
