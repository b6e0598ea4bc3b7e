// The fields of a line: where they stand, and what number or moment they hold.

#include <gtest/gtest.h>

#include <random>

#include "universal/FieldDate.h"
#include "universal/FieldIndex.h"
#include "universal/FieldNumber.h"
#include "universal/HeaderMap.h"

namespace tarnview {
namespace {

bool ReadShort(const std::string& field, double& number) {
  const std::string bytes = field + "5.599999";  // what stands behind the field must not count
  std::int32_t figures = 0;
  double power = 1;
  const std::string_view text(bytes.data(), field.size());
  if (!ReadFieldWord(FieldWord(text), text.size(), figures, power)) return false;
  number = figures / power;
  return true;
}

TEST(FieldNumber, TheFastRoadAgreesWithTheSlowOne) {
  std::mt19937 random(7);
  constexpr std::string_view kCharacters{"0123456789012345678901234567890123456789..-+ e,\0", 48};
  int fast = 0;
  for (int n = 0; n < 300000; ++n) {
    std::string field;
    for (auto left = 1 + random() % kShortField; left > 0; --left) field += kCharacters[random() % kCharacters.size()];
    double number = 0;
    if (!ReadShort(field, number)) continue;
    ++fast;
    ASSERT_EQ(number, ValDouble(field)) << field;
  }
  EXPECT_GT(fast, 30000);
}

TEST(FieldNumber, PlainShortNumbersTakeTheFastRoad) {
  for (const char* field : {"0", "12", "-1.5", "12345678", "-1234567", "1234.678", ".5", "5.", "-0.001", "-.5"}) {
    double number = 0;
    EXPECT_TRUE(ReadShort(field, number)) << field;
  }
  for (const char* field : {"-", ".", "-.", "1.2.3", "--1", "1-", "+1", " 1", "1 "}) {
    double number = 0;
    EXPECT_FALSE(ReadShort(field, number)) << field;
  }
}

TEST(FieldIndex, CutsLinesAsSplittingDoes) {
  std::mt19937 random(11);
  for (const int delimiter : {44, 9, 48, 0x80, 300}) {
    std::string bytes;
    for (int n = 0; n < 4000; ++n) {
      const auto kind = random() % 8;
      bytes += kind < 3 ? static_cast<char>(delimiter) : kind < 4 ? '\n' : static_cast<char>('a' + random() % 26);
      if (random() % 300 == 0) bytes += std::string(100, 'x');
    }
    constexpr std::size_t kMost = 5;
    FieldIndex index(bytes, delimiter, kMost);
    std::string_view rest = bytes;
    for (std::size_t line = 0; !rest.empty(); ++line) {
      const auto end = std::min(rest.find('\n'), rest.size());
      auto wanted = SplitFields(rest.substr(0, end), delimiter);
      if (wanted.size() > kMost) wanted.resize(kMost);
      index.Add(rest.substr(0, end));
      std::vector<std::string_view> found;
      for (std::size_t field = 0; field < index.Fields(line); ++field) found.push_back(index.Field(line, field));
      ASSERT_EQ(found, wanted) << delimiter;
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
  }
}

TEST(FieldDate, TheFormsThatLoggersWrite) {
  constexpr std::int64_t kDay = 86400;
  const struct {
    const char* text;
    double seconds;  ///< -1: none
  } kRows[] = {
      {"2001-03-01 00:00:01", 36951 * kDay + 1.0},
      {"2001/03/01", 36951.0 * kDay},
      {"01-Mar-2001 00:01:00.25", 36951 * kDay + 60.25},
      {"01/03/2001 23:59:59", 36952 * kDay - 1.0},
      {" 01-mAR-2001 ", 36951.0 * kDay},
      {"10:30:15.125", 37815.125},
      {"00:00:00", 0},
      {"29/02/2001", -1},
      {"2001-13-01", -1},
      {"2001-3-1", -1},
      {"01-Foo-2001", -1},
      {"01-ARA-2001", -1},
      {"24:00:00", -1},
      {"10:30", -1},
      {"10:30:15.", -1},
      {"10:30:15x", -1},
      {"2001-03-01  00:00:01", -1},
      {"2001-03-01T00:00:01", -1},
      {"2001-03-01 ", 36951.0 * kDay},
      {"2001-03-01 1", -1},
      {"", -1},
      {"12", -1},
  };
  for (const auto& row : kRows) {
    const auto moment = ParseFieldMoment(row.text);
    EXPECT_EQ(moment ? static_cast<double>(moment->seconds) + moment->fraction : -1, row.seconds) << row.text;
  }
}

}  // namespace
}  // namespace tarnview
