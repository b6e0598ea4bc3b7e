#include <gtest/gtest.h>

#include "samplegraph/ZoneInfluence.h"

namespace tarnview {
namespace {

std::string Names(const ZoneInfluence& found) {
  return found.lowerLow + " " + found.lowerHigh + " " + found.upperLow + " " + found.upperHigh;
}

TEST(ZoneInfluenceTest, NamesTheFourZonesAndPlacesTheSample) {
  const struct {
    double rpm, kPa;
    bool sixRows;
    const char* names;
    double up, across;
  } kRows[] = {
      // clang-format off
      {2600, 60, false, "220 225 320 325", 0, 0.7},    {2499, 39.5, false, "120 125 220 225", 0.4875, 0.498},
      {2250, 60, false, "220 225 320 325", 0, 0},      {2749, 60, false, "220 225 320 325", 0, 0.998},
      {100, 20, false, "100 105 200 205", 0, 0},       {7800, 500, false, "570 575 670 675", 0.975, 0.998},
      {3000, 10, false, "025 030 125 130", 0.75, 0.5}, {3000, 30, true, "125 130 225 230", 0, 0.5},
      {3000, 43, true, "125 130 225 230", 1, 0.5},     {3000, 69, true, "325 330 425 430", 1, 0.5},
      {3000, 83, true, "425 430 525 530", 1, 0.5},     {3000, 83.5, true, "525 530 625 630", -0.5 / 12, 0.5},
      {3000, 200, true, "525 530 625 630", 1, 0.5},    {3000, 10, true, "125 130 225 230", 0, 0.5},
      // clang-format on
  };
  for (const auto& row : kRows) {
    const ZoneInfluence found = FindZoneInfluence(row.rpm, row.kPa, row.sixRows);
    EXPECT_EQ(Names(found), row.names) << row.rpm << " " << row.kPa;
    EXPECT_DOUBLE_EQ(found.up, row.up) << row.rpm << " " << row.kPa;
    EXPECT_NEAR(found.across, row.across, 1e-9) << row.rpm << " " << row.kPa;
  }
}

}  // namespace
}  // namespace tarnview
