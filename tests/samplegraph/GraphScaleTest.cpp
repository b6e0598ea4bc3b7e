#include <gtest/gtest.h>

#include "samplegraph/GraphScale.h"

namespace tarnview {
namespace {

TEST(GraphScale, FollowsTheHighestValue) {
  const struct {
    double highest;
    std::int64_t max, divisions;
  } kRows[] = {
      {0, 1, 1},        {12, 13, 13},
      {12.5, 13, 13},   {13, 14, 7},
      {13.5, 16, 8},    {25, 26, 13},
      {99.6, 110, 11},  {1250, 1300, 13},
      {2500, 2600, 26}, {3e11, 300000000100, 3000000001},
  };
  for (const auto& row : kRows) {
    const VerticalScale scale = ScaleForHighest(row.highest);
    EXPECT_EQ(scale.max, row.max) << row.highest;
    EXPECT_EQ(scale.divisions, row.divisions) << row.highest;
  }
}

TEST(GraphScale, ReachesBelowZeroInWholeSteps) {
  const struct {
    double lowest, highest;
    std::int64_t min, max, divisions;
  } kRows[] = {{0, 12, 0, 13, 13},        {-0.1, 12, -1, 13, 14},   {-12, 12, -12, 13, 25},
               {-40, 110, -40, 120, 16},  {-110, 40, -110, 50, 16}, {-3, 0, -3, 1, 4},
               {-1250, 0, -1300, 100, 14}};
  for (const auto& row : kRows) {
    const VerticalScale scale = ScaleForRange(row.lowest, row.highest);
    EXPECT_EQ(scale.min, row.min) << row.lowest;
    EXPECT_EQ(scale.max, row.max) << row.lowest;
    EXPECT_EQ(scale.divisions, row.divisions) << row.lowest;
  }
  EXPECT_EQ(ReachingBelow({240, 12}, -25).min, -40);
  EXPECT_EQ(ReachingBelow({0, 0}, -25).min, 0);  // no steps
}

TEST(GraphScale, ATypedMaximumMovesOntoTheSteps) {
  const struct {
    std::int32_t typed;
    std::int64_t max, divisions;
  } kRows[] = {{33, 35, 7},  {27, 25, 5}, {250, 240, 12},  {240, 240, 12},
               {10, 10, 10}, {0, 0, 0},   {1000, 1000, 10}};
  for (const auto& row : kRows) {
    const VerticalScale scale = ScaleForFixedMax(row.typed);
    EXPECT_EQ(scale.max, row.max) << row.typed;
    EXPECT_EQ(scale.divisions, row.divisions) << row.typed;
  }
}

TEST(GraphScale, ThinsAboveSevenHundredAndFiftyRows) {
  EXPECT_EQ(ThinStep(500, true), 1);
  EXPECT_EQ(ThinStep(750, true), 1);  // 748 store rows
  EXPECT_EQ(ThinStep(751, true), 2);  // 1.5 goes to the even 2
  EXPECT_EQ(ThinStep(1251, true), 2);
  EXPECT_EQ(ThinStep(1751, true), 4);
  EXPECT_EQ(ThinStep(1751, false), 1);
}

TEST(GraphScale, LabelsTheTimeAxisByItsSpan) {
  EXPECT_EQ(TimeAxisFormat(0.5), "#######0.00");
  EXPECT_EQ(TimeAxisFormat(5), "#######0.0");
  EXPECT_EQ(TimeAxisFormat(10), "#######0");
}

}  // namespace
}  // namespace tarnview
