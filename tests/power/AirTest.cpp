#include "power/Air.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(Air, TheFactorOfTheDaysAir) {
  const auto factor = [](const TableRow& row) {
    const bool wet = row.Text(3) == "wet bulb";
    return CorrectionFactor({row.Int(0), row.Int(1), row.Text(2),
                             wet ? HumidityType::WetBulb : HumidityType::Relative});
  };
  ExpectTable(factor, R"(
25, 99, 0, relative -> 1.000 | 25, 100, 50, relative -> 1.007 | 20, 101, 50, relative -> 0.980 | 35, 75, 80, relative -> 1.505 | -30, 115, 0, relative -> 0.737 | 25, 99, 100, relative -> 1.039
20, 101, 15, wet bulb -> 0.982 | 30, 100, 20, wet bulb -> 1.018 | 30, 95, 31, wet bulb -> 1.118 | 10, 101, -5, wet bulb -> 0.947 | 25, 99, dry, relative -> 1.000
# Air that is none has no factor.
60, 10, 100, relative ->  | 20, 1, 50, relative ->  | -300, 99, 0, relative ->  | 20, 0, 0, relative -> 
)");
}

TEST(Air, HumidityOfAWetBulbIsAWholePerCent) {
  const auto humidity = [](const TableRow& row) {
    return NumberText(RelativeHumidity(row.Int(0), row.Int(1), row.Int(2)));
  };
  ExpectTable(humidity, R"(
20, 15, 1010 -> 58 | 30, 20, 1000 -> 39 | 20, 20, 1010 -> 100 | 20, 25, 1010 -> 100 | 40, 5, 1010 -> 0
)");
}

}  // namespace
}  // namespace tarnview
