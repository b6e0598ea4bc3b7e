#include "base/Dates.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(Dates, CountDaysAndRunOver) {
  const auto tell = [](const TableRow& row) {
    const Date date = MakeDate(row.Int(0), row.Int(1), row.Int(2));
    if (date == kNoDate) return "none" + DateText(date) + DayText(date);
    return NumberText(date) + " " + DateText(date) + " " + DayText(date);
  };
  ExpectTable(tell, R"(
1899, 12, 31 -> 1 1899-12-31 31-Dec-1899 | 2001, 3, 1 -> 36951 2001-03-01 01-Mar-2001 | 2003, 12, 31 -> 37986 2003-12-31 31-Dec-2003 | 2000, 2, 29 -> 36585 2000-02-29 29-Feb-2000
2000, 1, 9 -> 36534 2000-01-09 09-Jan-2000 | 100, 1, 1 -> -657434 0100-01-01 01-Jan-0100 | 9999, 12, 31 -> 2958465 9999-12-31 31-Dec-9999 | 99, 12, 31 -> none
10000, 1, 1 -> none
# Beyond a month's days and a year's months.
2001, 2, 31 -> 36953 2001-03-03 03-Mar-2001 | 2000, 2, 31 -> 36587 2000-03-02 02-Mar-2000 | 1900, 2, 29 -> 61 1900-03-01 01-Mar-1900 | 2001, 13, 1 -> 37257 2002-01-01 01-Jan-2002
2001, 0, 1 -> 36861 2000-12-01 01-Dec-2000 | 2001, -12, 0 -> 36494 1999-11-30 30-Nov-1999 | 2001, 1, 2147483647 -> none | 2147483647, 2147483647, 2147483647 -> none
)");
}

TEST(Dates, AreReadInManyForms) {
  const auto tell = [](const TableRow& row) {
    const Date date = StringToDate(row.All().substr(1, row.All().size() - 2), 1);
    return date == 1 ? "none" : DateText(date);
  };
  ExpectTable(tell, R"(
[18-Sep-2001] -> 2001-09-18 | [18-Sep-01] -> 2001-09-18 | [18 sep 2001] -> 2001-09-18 | [ 18 September 2001 ] -> 2001-09-18 | [Sep 18, 2001] -> 2001-09-18 | [2001-09-18] -> 2001-09-18
[2001-Sep-18] -> 2001-09-18 | [18/09/2001] -> 2001-09-18 | [09/10/2001] -> 2001-10-09 | [09/18/2001] -> 2001-09-18 | [01-Jan-29] -> 2029-01-01 | [01-Jan-30] -> 1930-01-01
[29-Feb-2000] -> 2000-02-29 | [01-Jan-00] -> 2000-01-01 | [2001-18-09] -> 2001-09-18
# No date.
[] -> none | [-] -> none | [18-Sep] -> none | [18-Sepp-2001] -> none | [18-Se-2001] -> none | [29-Feb-2001] -> none | [31/31/2001] -> none | [18-Sep-20011] -> none | [18-Sep-2001 x] -> none
[1-2-3-4] -> none | [18:09:2001] -> none | [99999999999-1-1] -> none | [1-1-99999999999] -> none
)");
  EXPECT_FALSE(ParseDate("\xff"));
}

}  // namespace
}  // namespace tarnview
