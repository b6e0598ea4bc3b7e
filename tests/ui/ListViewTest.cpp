#include <gtest/gtest.h>

#include "ui/Form.h"
#include "ui/ListView.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class ListViewTest : public testing::Test {
 protected:
  ListViewTest() {
    list.SetRows({{{"RPM", "10"}, "3", "", false, 0, -1},
                  {{"MAP", "9"}, "5", "", false, 0, -1},
                  {{"2"}, "2", "", false, 0, -1}});
    list.ItemCheck = [this](int row) { notes += " check:" + std::to_string(row); };
    list.ItemClick = [this](int row) { notes += " click:" + std::to_string(row); };
    list.DblClick = [this](int row) { notes += " double:" + std::to_string(row); };
    list.ColumnClick = [this](int column) { notes += " column:" + std::to_string(column); };
  }
  std::string Notes() { return std::exchange(notes, ""); }
  std::string Column(std::size_t column) const {
    std::string texts;
    for (const auto& row : list.Rows()) texts += row.texts[column] + " ";
    return texts;
  }

  RecordingHost host;
  Form form{host, "frmList", "List"};
  ListView list{form, "lvwItems", {{"Name"}, {"Value", true}}, true};
  std::string notes;
};

TEST_F(ListViewTest, CodeAndHandTickAlike) {
  list.SetChecked(1, true);
  list.SetChecked(1, true);
  list.Do({"tick", {"MAP", "on"}});
  list.Do({"tick", {"1", "off"}});
  EXPECT_EQ(Notes(), " check:1 check:2 check:1");
  EXPECT_TRUE(list.At(2).checked);
  EXPECT_FALSE(list.At(1).checked);
}

TEST_F(ListViewTest, RowsAreFoundByNumberThenByText) {
  list.Do({"row", {"2"}});  // the second row, not the one that reads "2"
  EXPECT_EQ(list.SelectedRow(), 2);
  list.Do({"double", {"RPM"}});
  EXPECT_EQ(Notes(), " click:2 click:1 double:1");
  EXPECT_EQ(list.RowOfTag("2"), 3);
  EXPECT_EQ(list.RowOfTag("9"), 0);
  list.Select(99);
  EXPECT_EQ(list.SelectedRow(), 3);
  EXPECT_EQ(Notes(), "");  // by code nothing is clicked
}

TEST_F(ListViewTest, ACellTakesAnotherText) {
  int changes = 0;
  list.Watch([&](What) { ++changes; });
  for (const char* text : {"11", "11"}) list.SetText(1, 1, text);
  EXPECT_EQ(Column(1) + std::to_string(changes), "11 9  1");
}

TEST_F(ListViewTest, AHeadingSortsNumbersByValueAndKeepsTheSelection) {
  list.Select(1);
  list.Do({"sort", {"Value"}});
  EXPECT_EQ(Column(1), "9 10  ");
  EXPECT_EQ(list.At(list.SelectedRow()).tag, "3");
  list.Do({"sort", {"2"}});
  EXPECT_EQ(Column(1), " 10 9 ");
  list.Do({"sort", {"Name"}});
  EXPECT_EQ(Column(0), "2 MAP RPM ");
  EXPECT_EQ(Notes(), " column:2 column:2 column:1");
}

TEST_F(ListViewTest, RefusesWhatIsNotThere) {
  const Action actions[] = {{"row", {"4"}},           {"row", {"0"}},  {"row", {}},
                            {"tick", {"1", "maybe"}}, {"tick", {"1"}}, {"sort", {"3"}},
                            {"sort", {"Colour"}},     {"type", {"x"}}};
  for (const Action& action : actions) EXPECT_THROW(list.Do(action), CannotDo) << action.verb;
  list.Clear();
  EXPECT_THROW(list.Do({"row", {"1"}}), CannotDo);
  EXPECT_EQ(list.SelectedRow(), 0);
}

}  // namespace
}  // namespace tarnview
