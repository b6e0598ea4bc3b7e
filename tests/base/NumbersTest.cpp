#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <random>
#include <string>

#include "base/DigitText.h"
#include "base/Numbers.h"

namespace tarnview {
namespace {

TEST(Numbers, ReadsTextTolerantly) {
  struct Row {
    const char* text;
    bool numeric;
    double number;
    double val;
    int whole;
  };
  const Row rows[] = {
      {"", false, 0, 0, 0},
      {"   ", false, 0, 0, 0},
      {"12abc", false, 12, 12, 12},
      {"2.5", true, 2.5, 2.5, 2},
      {"3.5", true, 3.5, 3.5, 4},
      {"-2.5", true, -2.5, -2.5, -2},
      {" \t7 \t", true, 7, 7, 7},
      {"+7", true, 7, 7, 7},
      {"- 7", false, 0, 0, 0},
      {"1 2", false, 1, 1, 1},
      {".", false, 0, 0, 0},
      {"-", false, 0, 0, 0},
      {".5", true, .5, .5, 0},
      {"5.", true, 5, 5, 5},
      {"1.2.3", false, 1.2, 1.2, 1},
      {"1,5", false, 1, 1, 1},
      {"1e3", true, 1000, 1, 1000},
      {"1E-1 ", true, .1, 1, 0},
      {"1e", false, 1, 1, 1},
      {"1e+x", false, 1, 1, 1},
      {"e3", false, 0, 0, 0},
      {"0x10", false, 0, 0, 0},
      {"nan", false, 0, 0, 0},
      {"inf", false, 0, 0, 0},
      {"1e999", true, 0, 1, 0},
      {"2147483647", true, 2147483647, 2147483647, 2147483647},
      {"2147483647.5", true, 2147483647.5, 2147483647.5, 0},
      {"-2147483648", true, -2147483648.0, -2147483648.0, -2147483647 - 1},
      {"4294967297", true, 4294967297, 4294967297, 0},
      {"123456789012345678901", true, 123456789012345678901.0, 123456789012345678901.0, 0},
      {"0000000000000000000012", true, 12, 12, 12},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(IsNumeric(row.text), row.numeric);
    EXPECT_EQ(StringToDouble(row.text), row.number);
    EXPECT_EQ(ValDouble(row.text), row.val);
    EXPECT_EQ(StringToLong(row.text), row.whole);
  }
}

std::string WithoutSign(const std::string& text) {
  return text.starts_with('-') || text.starts_with('+') ? text.substr(1) : text;
}

bool IsPlain(const std::string& text) {
  const std::string digits = WithoutSign(text);
  return digits.find_first_not_of("0123456789.") == std::string::npos &&
         digits.find('.') == digits.rfind('.') &&
         digits.find_first_of("0123456789") != std::string::npos;
}

bool IsExponent(const std::string& text) {
  const std::string digits = WithoutSign(text);
  return !digits.empty() && digits.find_first_not_of("0123456789") == std::string::npos;
}

double Plainly(std::string text) {
  text.erase(0, text.find_first_not_of(" \t"));
  const std::string whole = text.substr(0, text.find_last_not_of(" \t") + 1);
  const auto e = whole.find('e');
  const bool scientific =
      e != std::string::npos && IsPlain(whole.substr(0, e)) && IsExponent(whole.substr(e + 1));
  while (!scientific && !text.empty() && !IsPlain(text)) text.pop_back();
  const double value = std::strtod(text.c_str(), nullptr);
  return std::isfinite(value) ? value : 0;
}

TEST(Numbers, TheFastRoadAgreesWithAPlainOne) {
  std::mt19937 random(20261124);
  const std::string letters = "0123456789012345678901234567890123456789..-+  \tex";
  int fast = 0;
  for (int n = 0; n < 100000; ++n) {
    std::string text;
    for (auto length = random() % 20; length > 0; --length)
      text += letters[random() % letters.size()];
    double quick = 0;
    fast += detail::ReadShortNumber(text, quick);
    ASSERT_EQ(StringToDouble(text), Plainly(text)) << '"' << text << '"';
  }
  EXPECT_GT(fast, 1000);  // both roads were walked
  EXPECT_LT(fast, 99000);
}

TEST(Numbers, RoundsHalvesToEven) {
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(0.49999999999999994), 0);
  EXPECT_EQ(RoundHalfEven(1125899906842624.5), 1125899906842624.0);
  EXPECT_EQ(RoundHalfEven(4503599627370495.5), 4503599627370496.0);
  EXPECT_EQ(RoundHalfEven(1e300), 1e300);
  EXPECT_EQ(RoundToLong(-2147483648.5), -2147483647 - 1);
  EXPECT_EQ(RoundToLong(2147483647.5), 0);
  EXPECT_EQ(RoundToLong(std::nan("")), 0);
  EXPECT_EQ(RoundPlaces(14.705, 2), 14.7);
  EXPECT_EQ(RoundPlaces(137.46, 1), 137.5);
  EXPECT_EQ(RoundPlaces(1e308, 2), 1e308);
}

TEST(Numbers, WritesPlainDecimals) {
  const std::pair<double, const char*> rows[] = {
      {0, "0"},
      {-0.0, "0"},
      {-0.5, "-0.5"},
      {6.66, "6.66"},
      {0.1 + 0.2, "0.3"},
      {1234567.25, "1234567.25"},
      {100, "100"},
      {123456789012345, "123456789012345"},
      {1e20, "1E+20"},
      {-1.5e300, "-1.5E+300"},
      {0.00001, "0.00001"},
      {1.25e-20, "1.25E-20"},
      {2.0 / 3, "0.666666666666667"},
  };
  for (const auto& [value, text] : rows) EXPECT_EQ(NumberText(value), text);
}

TEST(Numbers, WritesFixedPlaces) {
  struct Row {
    double value;
    int places;
    const char* text;
  };
  const Row rows[] = {
      {14.705, 2, "14.70"}, {14.715, 2, "14.72"},
      {0.5, 0, "0"},        {2.5, 0, "2"},
      {0.05, 1, "0.0"},     {-0.004, 2, "0.00"},
      {-1.25, 1, "-1.2"},   {1000, 3, "1000.000"},
      {-0.75, 2, "-0.75"},  {1e20, 0, "100000000000000000000"},
  };
  for (const Row& row : rows) EXPECT_EQ(FixedText(row.value, row.places), row.text);
  EXPECT_EQ(PaddedText(5, 2), "05");
  EXPECT_EQ(PaddedText(123, 2), "123");
  EXPECT_EQ(PaddedText(-5, 3), "-005");
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
  EXPECT_EQ(written(-5, 1), "-0.5,");
  EXPECT_EQ(written(-1234567, 2), "-12345.67,");
  EXPECT_EQ(written(-kMost, 0), "-99999999,");
  EXPECT_EQ(written(kMost + 1, 0), "long");
  EXPECT_EQ(written(-kMost - 1, 0), "long");
  EXPECT_EQ(written(1, 8), "long");
}

}  // namespace
}  // namespace tarnview
