#include "support/Table.h"
#include "universal/FieldDate.h"

namespace tarnview {
namespace {

/// Days, and seconds of the day, of what stands in brackets.
TEST(FieldDate, TheFormsThatLoggersWrite) {
  const auto tell = [](const TableRow& row) -> std::string {
    const std::string& bracketed = row.Text(0);
    const auto moment = ParseFieldMoment(bracketed.substr(1, bracketed.size() - 2));
    if (!moment) return "none";
    return std::to_string(moment->seconds / 86400) + " " +
           NumberText(static_cast<double>(moment->seconds % 86400) + moment->fraction);
  };
  ExpectTable(tell, R"(
[2001-03-01 00:00:01] -> 36951 1 | [2001/03/01] -> 36951 0 | [01-Mar-2001 00:01:00.25] -> 36951 60.25 | [01/03/2001 23:59:59] -> 36951 86399 | [ 01-mAR-2001 ] -> 36951 0
[10:30:15.125] -> 0 37815.125 | [00:00:00] -> 0 0 | [2001-03-01 ] -> 36951 0
[29/02/2001] -> none | [2001-13-01] -> none | [2001-3-1] -> none | [01-Foo-2001] -> none | [01-ARA-2001] -> none | [24:00:00] -> none | [10:30] -> none | [10:30:15.] -> none | [10:30:15x] -> none
[2001-03-01  00:00:01] -> none | [2001-03-01T00:00:01] -> none | [2001-03-01 1] -> none | [] -> none | [12] -> none
)");
}

}  // namespace
}  // namespace tarnview
