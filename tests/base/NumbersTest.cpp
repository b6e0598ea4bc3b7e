#include <clocale>
#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <random>
#include <regex>

#include "base/DigitText.h"
#include "base/Numbers.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// What stands in brackets: the number at its start, with "numeric" where it is nothing else, the
/// whole number, and the number without an exponent where that differs.
TEST(Numbers, ReadsTextTolerantly) {
  const auto tell = [](const TableRow& row) {
    const std::string text = row.Text(0).substr(1, row.Text(0).size() - 2);
    const double number = StringToDouble(text);
    std::string told = NumberText(number) + (IsNumeric(text) ? " numeric" : "");
    if (StringToLong(text) != number) told += ", whole " + std::to_string(StringToLong(text));
    return told + (ValDouble(text) == number ? "" : ", plain " + NumberText(ValDouble(text)));
  };
  ExpectTable(tell, R"(
[] -> 0 | [   ] -> 0 | [12abc] -> 12 | [2.5] -> 2.5 numeric, whole 2 | [3.5] -> 3.5 numeric, whole 4 | [-2.5] -> -2.5 numeric, whole -2 | [ 7 ] -> 7 numeric
[+7] -> 7 numeric | [- 7] -> 0 | [1 2] -> 1 | [.] -> 0 | [-] -> 0 | [.5] -> 0.5 numeric, whole 0 | [5.] -> 5 numeric
[1.2.3] -> 1.2, whole 1 | [1,5] -> 1 | [1e3] -> 1000 numeric, plain 1 | [1E-1 ] -> 0.1 numeric, whole 0, plain 1 | [1e] -> 1 | [1e+x] -> 1 | [e3] -> 0
[0x10] -> 0 | [nan] -> 0 | [inf] -> 0 | [1e999] -> 0 numeric, plain 1 | [2147483647] -> 2147483647 numeric
[2147483647.5] -> 2147483647.5 numeric, whole 0 | [-2147483648] -> -2147483648 numeric | [4294967297] -> 4294967297 numeric, whole 0
[123456789012345678901] -> 1.23456789012346E+20 numeric, whole 0 | [0000000000000000000012] -> 12 numeric
)");
  EXPECT_EQ(StringToDouble(" \t7 \t"), 7);
}

/// The same by rules that are plain to read.
double Plainly(const std::string& text) {
  static const std::regex numeric(R"([ \t]*([-+]?(\d+\.?\d*|\.\d+)(e[-+]?\d+)?)[ \t]*)");
  static const std::regex atItsStart(R"([ \t]*([-+]?(\d+\.?\d*|\.\d+)).*)");
  std::smatch found;
  if (!std::regex_match(text, found, numeric) && !std::regex_match(text, found, atItsStart))
    return 0;
  const double value = std::strtod(found.str(1).c_str(), nullptr);
  return std::isfinite(value) ? value : 0;
}

TEST(Numbers, TheFastRoadAgreesWithAPlainOne) {
  std::mt19937 random(20261124);
  const std::string letters = "0123456789012345678901234567890123456789..-+  \tex";
  int fast = 0;
  for (int n = 0; n < 30000; ++n) {
    std::string text;
    for (auto length = random() % 20; length > 0; --length)
      text += letters[random() % letters.size()];
    double quick = 0;
    fast += detail::ReadShortNumber(text, quick);
    ASSERT_EQ(StringToDouble(text), Plainly(text)) << '"' << text << '"';
  }
  EXPECT_GT(fast, 1000);  // both roads were walked
  EXPECT_LT(fast, 29000);
}

TEST(Numbers, RoundsHalvesToEven) {
  const auto tell = [](const TableRow& row) {
    const double rounded = RoundHalfEven(row.Number(0));
    std::ostringstream told;
    told << std::setprecision(16) << rounded;
    if (RoundToLong(row.Number(0)) != rounded) told << ", whole " << RoundToLong(row.Number(0));
    return told.str();
  };
  ExpectTable(tell, R"(
0.5 -> 0 | 1.5 -> 2 | -1.5 -> -2 | 0.49999999999999994 -> 0 | 1125899906842624.5 -> 1125899906842624, whole 0 | 4503599627370495.5 -> 4503599627370496, whole 0
1e300 -> 1e+300, whole 0 | -2147483648.5 -> -2147483648 | 2147483647.5 -> 2147483648, whole 0 | nan -> nan, whole 0
)");
}

/// A number as it stands, then to a number of places: as it is written, and rounded.
TEST(Numbers, AreWritten) {
  const auto tell = [](const TableRow& row) {
    const double number = row.Number(0);
    if (row.Count() == 1) return NumberText(number);
    return FixedText(number, row.Int(1)) + " " + NumberText(RoundPlaces(number, row.Int(1)));
  };
  ExpectTable(tell, R"(
0 -> 0 | -0.0 -> 0 | -0.5 -> -0.5 | 6.66 -> 6.66 | 0.30000000000000004 -> 0.3 | 1234567.25 -> 1234567.25 | 100 -> 100
123456789012345 -> 123456789012345 | 1e20 -> 1E+20 | -1.5e300 -> -1.5E+300 | 0.00001 -> 0.00001 | 1.25e-20 -> 1.25E-20
0.6666666666666666 -> 0.666666666666667
14.705, 2 -> 14.70 14.7 | 14.715, 2 -> 14.72 14.72 | 0.5, 0 -> 0 0 | 2.5, 0 -> 2 2 | 0.05, 1 -> 0.0 0 | -0.004, 2 -> 0.00 0 | nan, 2 -> 0 0 | 137.46, 1 -> 137.5 137.5
-1.25, 1 -> -1.2 -1.2 | 1000, 3 -> 1000.000 1000 | -0.75, 2 -> -0.75 -0.75 | 1e20, 0 -> 100000000000000000000 1E+20
)");
  EXPECT_EQ(RoundPlaces(1e308, 2), 1e308);
  EXPECT_EQ(PaddedText(5, 2) + " " + PaddedText(123, 2) + " " + PaddedText(-5, 3) + " " +
                PaddedText(0, 3),
            "05 123 -005 000");
}

TEST(Numbers, KnowNoLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  for (const char* comma : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE"})
    if (std::setlocale(LC_ALL, comma)) break;
  EXPECT_EQ(NumberText(1234.5), "1234.5");
  EXPECT_EQ(FixedText(1234.5, 2), "1234.50");
  EXPECT_EQ(StringToDouble("12345678901234567.5"), 12345678901234567.5);
  std::setlocale(LC_ALL, before.c_str());
}

/// What two words of a short number hold is what is written digit by digit.
TEST(ShortNumberText, IsTheTextOfANumber) {
  const auto written = [](std::int64_t whole, int places) {
    char text[16] = {};
    ShortNumberText number;
    if (!number.Set(whole, places)) return std::string("long");
    return std::string(text, number.Write(text));
  };
  const std::int64_t kMost = 99999999;
  for (std::int64_t whole = 0; whole <= kMost; whole += whole < 11000 ? 1 : 1000 + whole % 7919)
    for (const int places : {0, 1, 3, 7}) {
      char digits[40];
      char* const end = digits + sizeof digits;
      const std::string expected(PutBefore(end, whole, places), end);
      ASSERT_EQ(written(whole, places), expected + ",");
      const bool isLong = expected.size() > 8;
      ASSERT_EQ(written(-whole - (whole == 0), places) == "long", isLong) << whole;
    }
  const auto tell = [&](const TableRow& row) {
    return written(static_cast<std::int64_t>(row.Number(0)), row.Int(1));
  };
  ExpectTable(tell, R"(
-5, 1 -> -0.5, | -1234567, 2 -> -12345.67, | -99999999, 0 -> -99999999, | 100000000, 0 -> long | -100000000, 0 -> long | 1, 8 -> long
)");
}

}  // namespace
}  // namespace tarnview
