#include "samplegraph/CLongScroll.h"
#include "support/Table.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(CLongScroll, TheBarShowsTheValueInProportionAndMovesItByItsSteps) {
  RecordingHost host;
  Form form{host, "frmTry", ""};
  ScrollBar bar{form, "hsbTry"};
  CLongScroll scroll;
  int changes = 0;
  scroll.Client(&bar);
  scroll.SmallChange = 7;
  scroll.LargeChange = 5000;
  scroll.Change = [&] { ++changes; };
  scroll.value(-5);
  EXPECT_EQ(scroll.value(), 0) << "before a range is told";
  const auto told = [&](const TableRow& row) {
    scroll.Min(row.Int(0));
    scroll.Max(row.Int(1));
    changes = 0;
    if (row.Count() > 2) scroll.value(row.Int(2));
    const std::string shown = "at " + std::to_string(bar.Value());
    if (row.Count() > 3) bar.Value = bar.Value() + row.Int(3);
    return shown + ", value " + std::to_string(scroll.value()) + ", " + std::to_string(changes) +
           " changes";
  };
  ExpectTable(told, R"(
# Half a step goes to the even one; at an end only where the value is.
0, 1000000, 500000 -> at 16384, value 500000, 1 changes | 0, 1000000, 999999 -> at 32766, value 999999, 1 changes | 0, 1000000, 1 -> at 1, value 1, 1 changes
0, 1000000, 2000000 -> at 32767, value 1000000, 1 changes | 0, 1000000, -5 -> at 0, value 0, 1 changes
# A step of the bar is a step of the range, a dragged thumb counts in proportion.
0, 1000000, 100000, 1 -> at 3277, value 100007, 2 changes | 0, 1000000, 100000, -1 -> at 3277, value 99993, 2 changes | 0, 1000000, 100000, -10 -> at 3277, value 95000, 2 changes
0, 1000000, 100000, 10 -> at 3277, value 105000, 2 changes | 0, 1000000, 0, 3277 -> at 0, value 100009, 2 changes | 0, 1000000, 3, -1 -> at 1, value 0, 2 changes
# A reversed bar runs the other way.
1000, 0, 0 -> at 32767, value 0, 1 changes | 1000, 0, 0, -1 -> at 32767, value 7, 2 changes | 1000, 0, 1000, 1 -> at 0, value 993, 2 changes
1000000, 0, 900000, 3277 -> at 3277, value 799982, 2 changes
)");
}

}  // namespace
}  // namespace tarnview
