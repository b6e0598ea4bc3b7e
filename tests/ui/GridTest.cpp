#include <sstream>

#include "support/Table.h"
#include "support/WindowFacts.h"
#include "ui/Form.h"
#include "ui/Grid.h"
#include "ui/RecordingHost.h"
#include "ui/TextBox.h"

namespace tarnview {
namespace {

/// Four rows and four columns, headings among them; the last cell is blacked out, the one before it
/// locked.
class GridTest : public testing::Test {
 protected:
  GridTest() {
    grid.SetSize(4, 4);
    for (int row = 1; row < 4; ++row)
      for (int column = 1; column < 4; ++column)
        grid.SetText(row, column, std::to_string(10 * row + column));
    GridCell cell = grid.At(3, 2);
    cell.locked = true;
    grid.SetCell(3, 2, cell);
    cell.locked = false;
    cell.blackedOut = true;
    grid.SetCell(3, 3, cell);
    grid.SelectionChanged = [this] { notes += "selected "; };
    grid.Click = [this](int row, int column) { Note("clicked", row, column); };
    grid.Edited = [this](int row, int column, const std::string& text) {
      Note("edited", row, column);
      notes += "'" + text + "' ";
      grid.SetText(row, column, text);
    };
    grid.RightClick = [this] { notes += "menu "; };
  }

  void Note(const char* what, int row, int column) {
    notes += std::string(what) + " " + std::to_string(row) + "," + std::to_string(column) + " ";
  }
  /// What was told, the selection (current cell first), and the field if one is open.
  std::string State() {
    const GridRange range = grid.Selection();
    std::ostringstream state;
    state << std::exchange(notes, "") << "@" << grid.Current().row << "," << grid.Current().column
          << " " << range.top << "," << range.left << ":" << range.bottom << "," << range.right;
    if (grid.IsEditing()) state << " [" << grid.EditText() << "]";
    return state.str();
  }

  RecordingHost host;
  Form form{host, "frmGrid", "Grid"};
  Grid grid{form, "grdData", 3};
  TextBox txtOther{form, "txtOther"};
  std::string notes;
};

TEST_F(GridTest, KeysMoveMarkAndEdit) {
  grid.SetFocus();
  const auto tell = [&](const TableRow& row) {
    const bool taken = form.Press(*ParseKeys(row.Text(0)));
    return (taken ? "" : "not taken ") + State();
  };
  // The cell at 3,3 is blacked out; of several cells one is edited; Ctrl+Home is the field's own.
  ExpectTable(tell, R"(
Right -> selected @1,2 1,2:1,2 | Down -> selected @2,2 2,2:2,2 | Ctrl+Right -> selected @2,3 2,3:2,3 | Right -> @2,3 2,3:2,3
Shift+Left -> selected @2,3 2,2:2,3 | Shift+Up -> selected @2,3 1,2:2,3 | Shift+Ctrl+Home -> selected @2,3 1,1:2,3
Home -> selected @2,1 2,1:2,1 | End -> selected @2,3 2,3:2,3 | PageUp -> selected @1,3 1,3:1,3 | Ctrl+Down -> selected @3,3 3,3:3,3
F2 -> not taken @3,3 3,3:3,3 | 5 -> not taken @3,3 3,3:3,3 | Ctrl+Left -> selected @3,1 3,1:3,1 | Ctrl+Up -> selected @1,1 1,1:1,1
PageDown -> selected @3,1 3,1:3,1 | Up -> selected @2,1 2,1:2,1 | Shift+Right -> selected @2,1 2,1:2,2
Enter -> selected @2,1 2,1:2,1 [21] | Up -> @2,1 2,1:2,1 [22] | Escape -> @2,1 2,1:2,1 | F2 -> @2,1 2,1:2,1 [21]
Down -> @2,1 2,1:2,1 [20] | Backspace -> @2,1 2,1:2,1 [2] | 7 -> @2,1 2,1:2,1 [27] | Enter -> edited 2,1 '27' @2,1 2,1:2,1
Delete -> @2,1 2,1:2,1 [] | Backspace -> @2,1 2,1:2,1 [] | Enter -> edited 2,1 '' @2,1 2,1:2,1 | Minus -> @2,1 2,1:2,1 [-]
Shift+A -> @2,1 2,1:2,1 [-A] | B -> @2,1 2,1:2,1 [-Ab] | Ctrl+C -> not taken @2,1 2,1:2,1 [-Ab] | Ctrl+Home -> not taken @2,1 2,1:2,1 [-Ab]
Escape -> @2,1 2,1:2,1 | Ctrl+A -> selected @1,1 1,1:3,3 | Ctrl+End -> selected @3,3 3,3:3,3 | Ctrl+Home -> selected @1,1 1,1:1,1
)");
}

TEST_F(GridTest, HandsClickDragAndLeave) {
  grid.UserClicks({2, 2});
  grid.UserExtends({9, 1});
  EXPECT_EQ(State(), "selected clicked 2,2 selected @2,2 2,1:3,2");
  grid.UserRightClicks({3, 1});
  grid.UserRightClicks({0, 1});  // a heading
  EXPECT_EQ(State(), "menu menu @2,2 2,1:3,2");
  grid.UserRightClicks({1, 1});
  EXPECT_EQ(State(), "selected menu @1,1 1,1:1,1");
  grid.UserClicks({0, 2});
  grid.UserDoubleClicks({2, 0});
  grid.UserDoubleClicks({3, 2});  // locked
  EXPECT_EQ(State(), "selected @3,2 3,2:3,2");
  grid.SetFocus();
  grid.UserDoubleClicks({2, 1});
  EXPECT_EQ(State(), "selected @2,1 2,1:2,1 [21]");
  grid.SetEditText("9");
  txtOther.SetFocus();
  EXPECT_EQ(State(), "edited 2,1 '9' @2,1 2,1:2,1");
  grid.UserDoubleClicks({1, 1});
  grid.SetEditText("8");
  grid.UserClicks({1, 2});
  EXPECT_EQ(State(), "selected edited 1,1 '8' selected clicked 1,2 @1,2 1,2:1,2");
}

TEST_F(GridTest, ScriptsSelectEditAndAreRefused) {
  grid.Do({"cell", {"2", "3"}});
  EXPECT_EQ(State(), "selected clicked 2,3 @2,3 2,3:2,3");
  grid.Do({"cell", {"1", "2", "99"}});
  EXPECT_EQ(State(), "selected clicked 1,2 edited 1,2 '99' @1,2 1,2:1,2");
  EXPECT_EQ(grid.Text(1, 2), "99");
  grid.Do({"range", {"3", "3", "2", "1"}});
  EXPECT_EQ(State(), "selected @3,3 2,1:3,3");
  grid.Do({"popup", {}});
  EXPECT_EQ(State(), "menu @3,3 2,1:3,3");
  const Action refused[] = {
      {"cell", {"0", "1"}},      {"cell", {"1", "0"}}, {"cell", {"4", "1"}},
      {"cell", {"1", "4"}},      {"cell", {"1"}},      {"cell", {"3", "3", "1"}},
      {"cell", {"3", "2", "1"}}, {"row", {"1"}},       {"range", {"1", "1", "2", "4"}}};
  for (const Action& action : refused) EXPECT_THROW(grid.Do(action), CannotDo) << action.verb;
  grid.ReadOnly = true;
  EXPECT_THROW(grid.Do({"cell", {"1", "1", "1"}}), CannotDo);
  EXPECT_FALSE(grid.BeginEdit(""));
}

TEST_F(GridTest, ArrowsOfTheFieldStayWithinTheRange) {
  grid.Min = -5;
  grid.Max = 30;
  const auto tell = [&](const TableRow& row) {
    grid.BeginEdit(row.Text(0));
    grid.StepEdit(row.Int(1));
    const std::string text = grid.EditText();
    grid.DiscardEdit();
    return text;
  };
  ExpectTable(tell, R"(
12, 1 -> 13 | 30, 1 -> 30 | -5, -1 -> -5 | 99, -1 -> 29 | -99, 1 -> -4 | x, -1 -> -1
)");
  grid.StepEdit(1);
  EXPECT_FALSE(grid.IsEditing());
}

TEST_F(GridTest, TellsHowItsCellsLook) {
  GridCell cell = grid.At(1, 1);
  cell.mark = GridCell::Mark::Raised;
  grid.SetCell(1, 1, cell);
  const WindowFacts facts(form);
  std::string told;
  for (const auto& [name, value] : facts.All())
    if (name.find("] ") != name.npos) told += name + "=" + value + "; ";
  ExpectTold(
      told,
      R"(grdData(3)[0] count=4; grdData(3)[1] count=4; grdData(3)[2] count=4; grdData(3)[3] count=4; grdData(3)[1][1] mark=raised; grdData(3)[3][2] locked=true; grdData(3)[3][3] blacked_out=true; )");
}

TEST_F(GridTest, ToldTextIsTakenWhereNobodyHears) {
  Grid plain(form, "grdPlain");
  plain.SetSize(2, 2);
  EXPECT_EQ(plain.Current(), (GridPlace{1, 1}));
  plain.BeginEdit("x");
  plain.SetSize(3, 3);  // the field is gone with its cell
  EXPECT_FALSE(plain.IsEditing());
  plain.Do({"cell", {"1", "2", "y"}});
  EXPECT_EQ(plain.Text(1, 2), "y");
  for (const auto& [row, column] : {std::pair(3, 0), {0, 3}, {-1, 0}, {0, -1}})
    EXPECT_THROW(plain.Text(row, column), std::out_of_range);
  plain.SetSize(1, 5);
  EXPECT_EQ(plain.Current(), (GridPlace{0, 0}));
  EXPECT_FALSE(plain.BeginEdit(""));
}

}  // namespace
}  // namespace tarnview
