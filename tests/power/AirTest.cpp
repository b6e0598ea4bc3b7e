#include <gtest/gtest.h>

#include "power/Air.h"

namespace tarnview {
namespace {

constexpr auto kRelative = HumidityType::Relative;
constexpr auto kWetBulb = HumidityType::WetBulb;

TEST(Air, TheFactorOfTheDaysAir) {
  const struct {
    Air air;
    const char* factor;
  } kRows[] = {
      {{25, 99, "0", kRelative}, "1.000"},   {{25, 100, "50", kRelative}, "1.007"},
      {{20, 101, "50", kRelative}, "0.980"}, {{35, 75, "80", kRelative}, "1.505"},
      {{-30, 115, "0", kRelative}, "0.737"}, {{25, 99, "100", kRelative}, "1.039"},
      {{20, 101, "15", kWetBulb}, "0.982"},  {{30, 100, "20", kWetBulb}, "1.018"},
      {{30, 95, "31", kWetBulb}, "1.118"},   {{10, 101, "-5", kWetBulb}, "0.947"},
      {{25, 99, "dry", kRelative}, "1.000"}, {{60, 10, "100", kRelative}, ""},
      {{20, 1, "50", kRelative}, ""},        {{-300, 99, "0", kRelative}, ""},
      {{20, 0, "0", kRelative}, ""},
  };
  for (const auto& row : kRows)
    EXPECT_EQ(CorrectionFactor(row.air), row.factor)
        << row.air.temperature << " " << row.air.humidity;
}

TEST(Air, HumidityOfAWetBulbIsAWholePerCent) {
  EXPECT_EQ(RelativeHumidity(20, 15, 1010), 58);
  EXPECT_EQ(RelativeHumidity(30, 20, 1000), 39);
  EXPECT_EQ(RelativeHumidity(20, 20, 1010), 100);
  EXPECT_EQ(RelativeHumidity(20, 25, 1010), 100);
  EXPECT_EQ(RelativeHumidity(40, 5, 1010), 0);
}

}  // namespace
}  // namespace tarnview
