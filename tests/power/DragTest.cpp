#include <gtest/gtest.h>

#include <cmath>

#include "base/Numbers.h"
#include "power/Drag.h"

namespace tarnview {
namespace {

TEST(Drag, BothWaysInBothUnits) {
  EXPECT_EQ(FixedText(GetSetPointDragCalcPart(100, 115, true), 6), "0.548822");
  EXPECT_EQ(FixedText(GetSetPointDragCalcPart(75, 180, false), 6), "0.599986");
  EXPECT_EQ(FixedText(GetCdDragCalcPart(0.36, 1.9, 98, 30, false), 6), "0.385156");
  EXPECT_EQ(FixedText(GetCdDragCalcPart(0.36, 1.9, 98, 30, true), 6), "0.035782");
  EXPECT_FALSE(std::isfinite(GetSetPointDragCalcPart(100, 0, true)));
}

TEST(Drag, TopSpeedIsWhereDragTakesAllPower) {
  const double k = GetSetPointDragCalcPart(100, 115, true);
  EXPECT_NEAR(TopSpeed(100, k, true), 115, 1e-9);
  EXPECT_NEAR(TopSpeed(800, k, true), 230, 1e-9);
  EXPECT_NEAR(TopSpeed(75, GetSetPointDragCalcPart(75, 180, false), false), 180, 1e-9);
  EXPECT_EQ(TopSpeed(0, k, true), 0);
}

TEST(Drag, CubeRootsOfTexts) {
  const char* kRows[][2] = {{"-27", "-3"},
                            {"27", "3"},
                            {"0", "0"},
                            {"-0", "0"},
                            {" 8 ", "2"},
                            {"1e-9", "0.001"},
                            {"2", "1.25992104989487"},
                            {"abc", "ERROR: Invalid numeric argument"},
                            {"", "ERROR: Invalid numeric argument"}};
  for (const auto& [text, root] : kRows) EXPECT_EQ(Cube_Root_Of(text), root) << text;
  EXPECT_TRUE(std::isfinite(CubeRoot(1e300)));
  EXPECT_TRUE(std::isfinite(CubeRoot(5e-324)));
}

TEST(Drag, NumbersInFrontOfUnits) {
  const struct {
    const char* text;
    double number;
  } kRows[] = {{"110 hp", 110}, {"-0.5kW", -0.5}, {"1e3 hp", 1000}, {"1e kg", 1},
               {" 12", 12},     {"12,5", 12},     {"hp 110", 0},    {"", 0},
               {".5 m2", 0.5},  {"-", 0},         {"2.2 m2", 2.2}};
  for (const auto& row : kRows) EXPECT_EQ(CDblStripUnits(row.text), row.number) << row.text;
  EXPECT_EQ(CDblStripUnits(std::string(1 << 20, '1')), 0);  // beyond a double
}

}  // namespace
}  // namespace tarnview
