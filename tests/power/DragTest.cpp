#include <cmath>

#include "base/Numbers.h"
#include "power/Drag.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(Drag, TopSpeedIsWhereDragTakesAllPower) {
  const auto speed = [](const TableRow& row) {
    const bool imperial = row.Text(3) == "imperial";
    const double drag = GetSetPointDragCalcPart(row.Int(1), row.Int(2), imperial);
    return FixedText(TopSpeed(row.Number(0), drag, imperial), 6);
  };
  ExpectTable(speed, R"(
100, 100, 115, imperial -> 115.000000 | 800, 100, 115, imperial -> 230.000000 | 75, 75, 180, metric -> 180.000000 | 0, 100, 115, imperial -> 0.000000
)");
}

TEST(Drag, TextsAreNumbersInFrontOfUnitsAndHaveCubeRoots) {
  const auto number = [](const TableRow& row) { return NumberText(CDblStripUnits(row.All())); };
  ExpectTable(number, R"(
110 hp -> 110 | -0.5kW -> -0.5 | 1e3 hp -> 1000 | 1e kg -> 1 |  12 -> 12 | 12,5 -> 12 | hp 110 -> 0 | .5 m2 -> 0.5 | - -> 0 | 2.2 m2 -> 2.2
)");
  EXPECT_EQ(CDblStripUnits(""), 0);
  EXPECT_EQ(CDblStripUnits(std::string(1 << 20, '1')), 0) << "beyond a double";
  const auto root = [](const TableRow& row) { return Cube_Root_Of(row.All()); };
  ExpectTable(root, R"(
-27 -> -3 | 27 -> 3 | 0 -> 0 | -0 -> 0 | 8 -> 2 | 1e-9 -> 0.001 | 2 -> 1.25992104989487 | abc -> ERROR: Invalid numeric argument
)");
  EXPECT_EQ(Cube_Root_Of(""), "ERROR: Invalid numeric argument");
  EXPECT_TRUE(std::isfinite(CubeRoot(1e300)));
  EXPECT_TRUE(std::isfinite(CubeRoot(5e-324)));
}

}  // namespace
}  // namespace tarnview
