#include <gtest/gtest.h>

#include "power/SpeedQuery.h"

namespace tarnview {
namespace {

TEST(SpeedQuery, TimeFromOneSpeedToTheOther) {
  const std::vector<SpeedPoint> kSeries{{0, 30.4}, {1, 40}, {2, 38}, {3, 60}, {4, 60}, {5, 70.4}};
  const struct {
    double from, to;
    const char* time;
  } kRows[] = {
      {40, 60, "02.00"},  {35, 65, "04.00"},   {60, 60, "00.00"}, {30.6, 60, "02.98"},
      {30.4, 70, "N/A"},  {31, 70.4, "04.94"}, {30, 60, "N/A"},   {40, 71, "N/A"},
      {31, 70.45, "N/A"}, {50, 55, "00.23"},
  };
  for (const auto& row : kRows)
    EXPECT_EQ(TimeBetween(kSeries, row.from, row.to), row.time) << row.from << " " << row.to;
  EXPECT_EQ(TimeBetween({}, 0, 0), "N/A");
  EXPECT_EQ(TimeBetween({{2, 50}}, 50, 50), "00.00");
  EXPECT_EQ(TimeBetween({{2, 50}, {125, 60}}, 50, 60), "123.00");
  EXPECT_EQ(TimeBetween({{2, 50}, {1.5, 60}}, 50, 60), "-00.50") << "intervals that shrink";
  EXPECT_EQ(TimeBetween({{2, 50.5}, {3, 60}}, 50.6, 60), "00.99");  // 51 lies above the first speed
}

// A speed that rounds to the first one or above, yet lies below it, has no way there: the first
// point's own time.
TEST(SpeedQuery, BelowTheFirstPointItsOwnTimeCounts) {
  EXPECT_EQ(TimeBetween({{2, 50.8}, {3, 60}}, 50.6, 60), "01.00");
}

}  // namespace
}  // namespace tarnview
