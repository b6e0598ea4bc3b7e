#include "ui/ListView.h"
#include "ui/Steps.h"

namespace tarnview {
namespace {

class ListViewTest : public StepsTest {
 protected:
  ListViewTest() {
    list.SetRows({{{"RPM", "10"}, "3", "", false, 0, -1},
                  {{"MAP", "9"}, "5", "", false, 0, -1},
                  {{"2"}, "2", "", false, 0, -1}});
    const auto note = [this](const char* what) {
      return [this, what](int n) { notes += what + std::to_string(n); };
    };
    list.ItemCheck = note(" check:");
    list.ItemClick = note(" click:");
    list.DblClick = note(" double:");
    list.ColumnClick = note(" column:");
    list.Watch([this](What) { notes += "*"; });
    verbs["code"] = [this](const Words& words) {
      const int row = std::stoi(words[1]);
      if (words[0] == "tick") list.SetChecked(row, true);
      if (words[0] == "select") list.Select(row);
      if (words[0] == "text") list.SetText(row, 1, words[2]);
      if (words[0] == "clear") list.Clear();
    };
    // Each row, "x" where it is ticked, and the one that is selected, with its tag.
    state = [this] {
      std::string told;
      for (const auto& row : list.Rows())
        told += " " + row.texts[0] + "=" + row.texts[1] + (row.checked ? "x" : "");
      const int selected = list.SelectedRow();
      return told + " @" + (selected > 0 ? list.At(selected).tag : "none");
    };
  }
  ListView list{form, "lvwItems", {{"Name"}, {"Value", true}}, true};
};

TEST_F(ListViewTest, CodeAndHand) {
  ExpectSteps(list, R"(
code tick 1; code tick 1 -> * check:1 RPM=10x MAP=9 2= @none
tick MAP on; tick 1 off -> ** check:2* check:1 RPM=10 MAP=9x 2= @none
# A number is the row's, though another one reads so; by code nothing is clicked.
row 2 -> * click:2 RPM=10 MAP=9x 2= @5
double RPM -> * click:1 double:1 RPM=10 MAP=9x 2= @3
code select 99 -> * RPM=10 MAP=9x 2= @2
code text 1 11; code text 1 11 -> * RPM=11 MAP=9x 2= @2
# Numbers are sorted by value, and the selection stays with its row.
code select 1; sort Value -> *** column:2 MAP=9x RPM=11 2= @3
sort 2 -> ** column:2 2= RPM=11 MAP=9x @3
sort Name -> ** column:1 2= MAP=9x RPM=11 @3
row 4; row 0; row; tick 1 maybe; tick 1; sort 3; sort Colour; type x ->  cannot cannot cannot cannot cannot cannot cannot cannot 2= MAP=9x RPM=11 @3
code clear 0; row 1 -> * cannot @none
)");
  EXPECT_EQ(list.RowOfTag("2"), 0);
}

TEST_F(ListViewTest, RowsAreFoundByTheirTags) {
  EXPECT_EQ(list.RowOfTag("2"), 3);
  EXPECT_EQ(list.RowOfTag("9"), 0);
}

}  // namespace
}  // namespace tarnview
