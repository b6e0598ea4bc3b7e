#include <gtest/gtest.h>

#include "universal/FieldDate.h"

namespace tarnview {
namespace {

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
    EXPECT_EQ(moment ? static_cast<double>(moment->seconds) + moment->fraction : -1, row.seconds)
        << row.text;
  }
}

}  // namespace
}  // namespace tarnview
