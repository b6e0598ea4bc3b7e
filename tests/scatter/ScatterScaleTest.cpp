#include <limits>

#include "scatter/ScatterScale.h"
#include "support/Table.h"

namespace tarnview {
namespace {

std::vector<double> Values(const TableRow& row) {
  std::vector<double> values;
  for (std::size_t n = 0; n < row.Count(); ++n)
    if (row.Text(n) != "none") values.push_back(row.Number(n));
  return values;
}

TEST(ScatterScale, HoldsTheValuesOnRoundSteps) {
  const auto told = [](const TableRow& row) {
    const ChartAxis axis = AutomaticAxis(Values(row), "t");
    return FixedText(axis.min, 3) + " to " + FixedText(axis.max, 3) + " by " +
           std::to_string(axis.divisions) + " as " + axis.format;
  };
  ExpectTable(told, R"(
850, 7100 -> 0.000 to 8000.000 by 8 as #######0 | 2900, 7100 -> 2500.000 to 7500.000 by 10 as #######0 | 10.2, 14.9, 12 -> 10.000 to 15.000 by 10 as #######0.0 | -3, 42 -> -5.000 to 45.000 by 10 as #######0 | 0, 0.03 -> 0.000 to 0.030 by 6 as #######0.000
5 -> 4.500 to 5.500 by 10 as #######0.0 | 0, 0, 0 -> -1.000 to 1.000 by 10 as #######0.0 | none -> 0.000 to 1.000 by 10 as #######0.0 | nan, 1, inf, 11 -> 1.000 to 11.000 by 10 as #######0
)");
}

TEST(ScatterScale, StaysSaneAtTheEndsOfADouble) {
  const auto sane = [](const TableRow& row) {
    const ChartAxis axis = AutomaticAxis(Values(row), "");
    const bool steps = axis.divisions >= 1 && axis.divisions <= 12;
    return axis.min < axis.max && steps ? "sane" : "not";
  };
  ExpectTable(sane, R"(
-1.7976931348623157e308, 1.7976931348623157e308 -> sane | 1.7976931348623157e308, 1.7976931348623157e308 -> sane | -9e299, 9e299 -> sane | 9e299 -> sane
1e15, 1000000000000000.125 -> sane | 1e-90, 1e-89 -> sane | 0, 1.7976931348623157e308 -> sane
)");
  constexpr double kLeast = std::numeric_limits<double>::denorm_min();  // which no text gives
  for (const double least : {0.0, -kLeast}) {
    const ChartAxis axis = AutomaticAxis({least, kLeast}, "");
    EXPECT_LT(axis.min, axis.max);
    EXPECT_GE(axis.divisions, 1);
    EXPECT_LE(axis.divisions, 12);
  }
}

}  // namespace
}  // namespace tarnview
