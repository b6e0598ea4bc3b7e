#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "scatter/ScatterScale.h"

namespace tarnview {
namespace {

TEST(ScatterScale, HoldsTheValuesOnRoundSteps) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN(),
                   kEndless = std::numeric_limits<double>::infinity();
  const struct {
    std::vector<double> values;
    double min, max;
    int divisions;
    const char* format;
  } kRows[] = {
      {{850, 7100}, 0, 8000, 8, "#######0"},
      {{2900, 7100}, 2500, 7500, 10, "#######0"},
      {{10.2, 14.9, 12}, 10, 15, 10, "#######0.0"},
      {{-3, 42}, -5, 45, 10, "#######0"},
      {{0, 0.03}, 0, 0.03, 6, "#######0.000"},
      {{5}, 4.5, 5.5, 10, "#######0.0"},
      {{0, 0, 0}, -1, 1, 10, "#######0.0"},
      {{}, 0, 1, 10, "#######0.0"},
      {{kNan, 1, kEndless, 11}, 1, 11, 10, "#######0"},
  };
  for (const auto& row : kRows) {
    const ChartAxis axis = AutomaticAxis(row.values, "t");
    EXPECT_NEAR(axis.min, row.min, 1e-9) << &row - kRows;
    EXPECT_NEAR(axis.max, row.max, 1e-9) << &row - kRows;
    EXPECT_EQ(axis.divisions, row.divisions) << &row - kRows;
    EXPECT_EQ(axis.format, row.format) << &row - kRows;
  }
}

TEST(ScatterScale, StaysSaneAtTheEndsOfADouble) {
  const double most = std::numeric_limits<double>::max(),
               least = std::numeric_limits<double>::denorm_min();
  for (const auto& values : std::vector<std::vector<double>>{{-most, most},
                                                             {most, most},
                                                             {-9e299, 9e299},
                                                             {9e299},
                                                             {0, least},
                                                             {-least, least},
                                                             {1e15, 1e15 + 0.125},
                                                             {1e-90, 1e-89},
                                                             {0, most}}) {
    const ChartAxis axis = AutomaticAxis(values, "");
    EXPECT_LT(axis.min, axis.max) << values[0];
    EXPECT_GE(axis.divisions, 1) << values[0];
    EXPECT_LE(axis.divisions, 12) << values[0];
  }
}

}  // namespace
}  // namespace tarnview
