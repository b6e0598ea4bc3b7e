#include "base/Numbers.h"
#include "power/Smoothing.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// The entry behind the last point draws the end of a smoothed curve to it. The second average is a
/// third as wide, and two at least from a factor of three on.
TEST(Smoothing, TwoAveragesInWhichThePointBehindTheLastCounts) {
  const auto smoothed = [](const TableRow& row) {
    std::vector<PowerPoint> points{{1, 0, 0}, {2, 60, 6}, {3, 0, 0}, {4, 30, 3}, {5, 90, 9}};
    Smooth(points, row.Int(0));
    std::string text;
    for (const PowerPoint& p : points) {
      EXPECT_NEAR(p.power, p.torque * 10, 1e-12);
      text += FixedText(p.rpm, 0) + ":" + FixedText(p.power, 2) + " ";
    }
    return text + "by " + std::to_string(SecondHalfWidth(row.Int(0)));
  };
  ExpectTable(smoothed, R"(
0 -> 1:0.00 2:60.00 3:0.00 4:30.00 5:90.00 by 0
-2 -> 1:0.00 2:60.00 3:0.00 4:30.00 5:90.00 by -1
1 -> 1:30.00 2:20.00 3:30.00 4:40.00 5:60.00 by 0
2 -> 1:21.25 2:26.17 3:34.50 4:40.33 5:48.33 by 1
3 -> 1:31.50 2:32.62 3:35.10 4:38.60 5:39.25 by 2
4 -> 1:36.00 2:36.00 3:36.00 4:37.80 5:38.25 by 2
100 -> 1:36.00 2:36.00 3:36.00 4:36.00 5:36.00 by 33
2147483647 -> 1:36.00 2:36.00 3:36.00 4:36.00 5:36.00 by 715827882
)");
  const auto half = [](const TableRow& row) { return std::to_string(SecondHalfWidth(row.Int(0))); };
  ExpectTable(half, R"(
6 -> 2 | 7 -> 2 | 8 -> 3 | 10 -> 3 | 11 -> 4
)");
  std::vector<PowerPoint> none;
  Smooth(none, 7);
  EXPECT_TRUE(none.empty());
}

}  // namespace
}  // namespace tarnview
