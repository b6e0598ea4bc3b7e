#include <gmock/gmock.h>

#include "qt/chart/AxisNumbers.h"

namespace tarnview {
namespace {

TEST(AxisNumbersTest, NumbersFollowTheirFormat) {
  const struct {
    double number;
    const char* format;
    const char* text;
  } rows[] = {{12.345, "#######0.00", "12.35"}, {12.25, "#######0.0", "12.2"},
              {2.5, "#######0", "2"},           {-0.001, "#######0.00", "0.00"},
              {1e9, "#######0", "1000000000"},  {7, "", "7"}};
  for (const auto& row : rows) EXPECT_EQ(FormatNumber(row.number, row.format), row.text);
}

std::string Shown(const ChartAxis& axis, double length, double textSize) {
  std::string all;
  for (const AxisNumber& number : AxisNumbers(axis, length, textSize)) all += number.text + "|";
  return all;
}

TEST(AxisNumbersTest, NumbersThatWouldCollideAreLeftOut) {
  EXPECT_EQ(Shown({0, 5, 5, "0"}, 500, 20), "0|1|2|3|4|5|");
  EXPECT_EQ(Shown({0, 10, 10, "0"}, 100, 19), "0||2||4||6||8||10|") << "every second one";
  EXPECT_EQ(Shown({0, 10, 10, "0"}, 100, 31), "0|||||5|||||10|")
      << "both ends, where a step that divides them will do";
  EXPECT_EQ(Shown({0, 13, 13, "0"}, 130, 19), "0||2||4||6||8||10||12||");
  EXPECT_EQ(Shown({0, 1, 0, "0"}, 0, 20), "0|1|") << "a chart without a size";
}

}  // namespace
}  // namespace tarnview
