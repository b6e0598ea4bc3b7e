#include <gtest/gtest.h>

#include "base/Dates.h"

namespace tarnview {
namespace {

TEST(Dates, CountDaysAndRunOver) {
  EXPECT_EQ(MakeDate(2001, 3, 1), 36951);
  EXPECT_EQ(MakeDate(1899, 12, 31), 1);
  EXPECT_EQ(MakeDate(2001, 2, 31), MakeDate(2001, 3, 3));
  EXPECT_EQ(MakeDate(2000, 2, 31), MakeDate(2000, 3, 2));
  EXPECT_EQ(MakeDate(2001, 13, 1), MakeDate(2002, 1, 1));
  EXPECT_EQ(MakeDate(2001, 0, 1), MakeDate(2000, 12, 1));
  EXPECT_EQ(MakeDate(2001, -12, 0), MakeDate(1999, 11, 30));
  EXPECT_EQ(MakeDate(2147483647, 2147483647, 2147483647), kNoDate);
  for (const int year : {99, 10000}) EXPECT_EQ(MakeDate(year, 1, 1), kNoDate);
  EXPECT_EQ(DateText(MakeDate(9999, 12, 31)) + DateText(MakeDate(100, 1, 1)),
            "9999-12-310100-01-01");
  EXPECT_EQ(MakeDate(2001, 1, 2147483647), kNoDate);
  EXPECT_EQ(DateText(36951), "2001-03-01");
  EXPECT_EQ(DateText(MakeDate(2000, 2, 29)), "2000-02-29");
  EXPECT_EQ(DateText(kNoDate), "");
  EXPECT_EQ(DayText(36951), "01-Mar-2001");
  EXPECT_EQ(DayText(MakeDate(2003, 12, 31)), "31-Dec-2003");
  EXPECT_EQ(DayText(MakeDate(2000, 1, 9)), "09-Jan-2000");
  EXPECT_EQ(DayText(kNoDate), "");
}

TEST(Dates, AreReadInManyForms) {
  const std::pair<const char*, const char*> rows[] = {
      // clang-format off
      {"18-Sep-2001", "2001-09-18"},         {"18-Sep-01", "2001-09-18"},    {"18 sep 2001", "2001-09-18"},
      {" 18 September 2001 ", "2001-09-18"}, {"Sep 18, 2001", "2001-09-18"}, {"2001-09-18", "2001-09-18"},
      {"2001-Sep-18", "2001-09-18"},         {"18/09/2001", "2001-09-18"},   {"09/10/2001", "2001-10-09"},
      {"09/18/2001", "2001-09-18"},          {"01-Jan-29", "2029-01-01"},    {"01-Jan-30", "1930-01-01"},
      {"29-Feb-2000", "2000-02-29"},         {"01-Jan-00", "2000-01-01"},   {"2001-18-09", "2001-09-18"},
      // clang-format on
  };
  for (const auto& [text, date] : rows)
    EXPECT_EQ(DateText(ParseDate(text).value_or(kNoDate)), date) << text;

  for (const char* text :
       {"", "-", "18-Sep", "18-Sepp-2001", "18-Se-2001", "29-Feb-2001", "31/31/2001",
        "18-Sep-20011", "18-Sep-2001 x", "1-2-3-4", "18:09:2001", "99999999999-1-1", "\xff"})
    EXPECT_FALSE(ParseDate(text)) << text;
  EXPECT_EQ(StringToDate("rubbish", 36951), 36951);
}

}  // namespace
}  // namespace tarnview
