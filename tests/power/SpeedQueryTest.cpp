#include "power/SpeedQuery.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(SpeedQuery, TimeFromOneSpeedToTheOther) {
  const std::vector<SpeedPoint> series{{0, 30.4}, {1, 40}, {2, 38}, {3, 60}, {4, 60}, {5, 70.4}};
  const auto time = [&](const TableRow& row) {
    return TimeBetween(series, row.Number(0), row.Number(1));
  };
  ExpectTable(time, R"(
40, 60 -> 02.00 | 35, 65 -> 04.00 | 60, 60 -> 00.00 | 30.6, 60 -> 02.98 | 30.4, 70 -> N/A | 31, 70.4 -> 04.94 | 30, 60 -> N/A | 40, 71 -> N/A | 31, 70.45 -> N/A | 50, 55 -> 00.23
)");
  EXPECT_EQ(TimeBetween({}, 0, 0), "N/A");
  EXPECT_EQ(TimeBetween({{2, 50}}, 50, 50), "00.00");
  EXPECT_EQ(TimeBetween({{2, 50}, {125, 60}}, 50, 60), "123.00");
  EXPECT_EQ(TimeBetween({{2, 50}, {1.5, 60}}, 50, 60), "-00.50") << "intervals that shrink";
  EXPECT_EQ(TimeBetween({{2, 50.5}, {3, 60}}, 50.6, 60), "00.99");  // 51 lies above the first speed
  // One that rounds to the first or above, yet lies below it, has no way there: that one's time.
  EXPECT_EQ(TimeBetween({{2, 50.8}, {3, 60}}, 50.6, 60), "01.00");
}

}  // namespace
}  // namespace tarnview
