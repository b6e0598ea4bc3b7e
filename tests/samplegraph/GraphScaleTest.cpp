#include "samplegraph/GraphScale.h"
#include "support/Table.h"

namespace tarnview {
namespace {

std::string Told(const VerticalScale& scale) {
  return std::to_string(scale.min) + " to " + std::to_string(scale.max) + " by " +
         std::to_string(scale.divisions);
}

TEST(GraphScale, HoldsTheLowestAndTheHighestValueInWholeSteps) {
  const auto range = [](const TableRow& row) {
    return Told(ScaleForRange(row.Number(0), row.Number(1)));
  };
  ExpectTable(range, R"(
0, 0 -> 0 to 1 by 1 | 0, 12 -> 0 to 13 by 13 | 0, 12.5 -> 0 to 13 by 13 | 0, 13 -> 0 to 14 by 7 | 0, 13.5 -> 0 to 16 by 8 | 0, 25 -> 0 to 26 by 13 | 0, 99.6 -> 0 to 110 by 11 | 0, 1250 -> 0 to 1300 by 13 | 0, 2500 -> 0 to 2600 by 26 | 0, 3e11 -> 0 to 300000000100 by 3000000001
-0.1, 12 -> -1 to 13 by 14 | -12, 12 -> -12 to 13 by 25 | -40, 110 -> -40 to 120 by 16 | -110, 40 -> -110 to 50 by 16 | -3, 0 -> -3 to 1 by 4 | -1250, 0 -> -1300 to 100 by 14
)");
  EXPECT_EQ(Told(ReachingBelow({240, 12}, -25)), "-40 to 240 by 14");
  EXPECT_EQ(Told(ReachingBelow({0, 0}, -25)), "0 to 0 by 0") << "no steps";
}

TEST(GraphScale, ATypedMaximumMovesOntoTheSteps) {
  const auto fixed = [](const TableRow& row) { return Told(ScaleForFixedMax(row.Int(0))); };
  ExpectTable(fixed, R"(
33 -> 0 to 35 by 7 | 27 -> 0 to 25 by 5 | 250 -> 0 to 240 by 12 | 240 -> 0 to 240 by 12 | 10 -> 0 to 10 by 10 | 0 -> 0 to 0 by 0 | 1000 -> 0 to 1000 by 10
)");
}

/// 750 are 748 rows of the store; half a step goes to the even one.
TEST(GraphScale, QuickGraphThinsAboveSevenHundredAndFiftyRows) {
  const auto step = [](const TableRow& row) {
    return std::to_string(ThinStep(row.Int(0), row.Text(1) == "quick"));
  };
  ExpectTable(step, R"(
500, quick -> 1 | 750, quick -> 1 | 751, quick -> 2 | 1251, quick -> 2 | 1751, quick -> 4 | 1751, full -> 1
)");
}

TEST(GraphScale, LabelsTheTimeAxisByItsSpan) {
  const auto format = [](const TableRow& row) { return TimeAxisFormat(row.Number(0)); };
  ExpectTable(format, R"(
0.5 -> #######0.00 | 1 -> #######0.0 | 5 -> #######0.0 | 9.9 -> #######0.0 | 10 -> #######0
)");
}

}  // namespace
}  // namespace tarnview
