#include "base/Numbers.h"
#include "power/PowerLog.h"
#include "support/Table.h"

namespace tarnview {
namespace {

std::string Printed(const std::vector<PowerPoint>& points) {
  std::vector<std::string> told;
  for (const PowerPoint& p : points)
    told.push_back(FixedText(p.rpm, 0) + " " + FixedText(p.power, 3) + " " +
                   FixedText(p.torque, 3));
  return Join(told, "; ");
}

TEST(PowerCurves, OfEqualPeaksTheFirstStandsAndNothingAboveZeroIsNoPeak) {
  const auto told = [](const TableRow& row) {
    const PowerPeaks p = PeaksOf(PointsOf(row.All()));
    std::string text;
    for (const double one : {p.power, p.powerRpm, p.torque, p.torqueRpm, p.maxRpm})
      text += NumberText(one) + " ";
    return text + (p.topSpeed ? "top" : "no top");
  };
  ExpectTable(told, R"(
3000 90 100; 3500 90 120; 3200 -5 120 -> 90 3000 120 3500 3500 no top | 3000 -1 0 -> 0 0 0 0 3000 no top
)");
}

TEST(PowerCurves, ChangeUnitsOnlyWhereTheyDiffer) {
  const auto told = [](const TableRow& row) {
    return Printed(InUnits({{5000, 100, 100}}, row.Yes(0), row.Yes(1)));
  };
  // Imperial before, and then.
  ExpectTable(told, R"(
yes, yes -> 5000 100.000 100.000 | no, no -> 5000 100.000 100.000 | yes, no -> 5000 74.570 135.700 | no, yes -> 5000 134.102 73.692
)");
}

TEST(PowerCurves, AnAverageHoldsWithinTheBenchmarkAlone) {
  const auto averaged = [](const TableRow& row) {
    std::vector<PowerPoint> run = PointsOf(row.Text(0));
    AverageWith(run, PointsOf(row.Text(1)));
    return Printed(run);
  };
  ExpectTable(averaged, R"(
1999 50 90; 2000 50 90; 2250 50 90; 3000 50 90; 3001 50 90, 2000 40 100; 3000 60 200 -> 1999 50.000 90.000; 2000 45.000 95.000; 2250 47.500 107.500; 3000 55.000 145.000; 3001 50.000 90.000
2500 50 90, none -> 2500 50.000 90.000
0 50 90, -1 0 0; 1 0 0 -> 0 50.000 90.000
# Neighbours in the file's order: a falling pair holds nothing, and the first rising one counts.
2500 50 90, 3000 0 0; 2000 0 0 -> 2500 50.000 90.000
2500 50 90, 3000 9 9; 2000 10 10; 3000 30 30; 2000 1 1; 3000 1 1 -> 2500 35.000 55.000
2500 50 90, 2500 10 10; 2500 30 30 -> 2500 30.000 50.000
)");
}

}  // namespace
}  // namespace tarnview
