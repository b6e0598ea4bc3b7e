#include <sstream>

#include "ui/Grid.h"
#include "ui/Steps.h"
#include "ui/TextBox.h"

namespace tarnview {
namespace {

/// Four rows and four columns, headings among them; the last cell is blacked out, the one before it
/// locked.
class GridTest : public StepsTest {
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
    const auto note = [this](const char* what, int row, int column) {
      notes += std::string(what) + " " + std::to_string(row) + "," + std::to_string(column) + " ";
    };
    grid.SelectionChanged = [this] { notes += "selected "; };
    grid.Click = [note](int row, int column) { note("clicked", row, column); };
    grid.Edited = [this, note](int row, int column, const std::string& text) {
      note("edited", row, column);
      notes += "'" + text + "' ";
      grid.SetText(row, column, text);
    };
    grid.RightClick = [this] { notes += "menu "; };
    const auto hand = [this](void (Grid::*act)(GridPlace)) {
      return [this, act](const Words& at) { (grid.*act)({std::stoi(at[0]), std::stoi(at[1])}); };
    };
    verbs = {{"click", hand(&Grid::UserClicks)},
             {"extend", hand(&Grid::UserExtends)},
             {"right", hand(&Grid::UserRightClicks)},
             {"double", hand(&Grid::UserDoubleClicks)},
             {"write", [this](const Words& words) { grid.SetEditText(words[0]); }},
             {"read_only", [this](const Words&) { grid.ReadOnly = true; }},
             {"focus", [this](const Words&) { grid.SetFocus(); }},
             {"leave", [this](const Words&) { txtOther.SetFocus(); }},
             {"key", [this](const Words& words) {
                if (!form.Press(*ParseKeys(words[0]))) notes += "not taken ";
              }}};
    // The selection, current cell first, and the field if one is open.
    state = [this] {
      const GridRange range = grid.Selection();
      std::ostringstream told;
      told << "@" << grid.Current().row << "," << grid.Current().column << " " << range.top << ","
           << range.left << ":" << range.bottom << "," << range.right;
      if (grid.IsEditing()) told << " [" << grid.EditText() << "]";
      return told.str();
    };
  }

  Grid grid{form, "grdData", 3};
  TextBox txtOther{form, "txtOther"};
};

TEST_F(GridTest, KeysMoveMarkAndEdit) {
  grid.SetFocus();
  // The cell at 3,3 is blacked out; of several cells one is edited; Ctrl+Home is the field's own.
  ExpectSteps(grid, R"(
key Right -> selected @1,2 1,2:1,2 | key Down -> selected @2,2 2,2:2,2 | key Ctrl+Right -> selected @2,3 2,3:2,3 | key Right -> @2,3 2,3:2,3
key Shift+Left -> selected @2,3 2,2:2,3 | key Shift+Up -> selected @2,3 1,2:2,3 | key Shift+Ctrl+Home -> selected @2,3 1,1:2,3
key Home -> selected @2,1 2,1:2,1 | key End -> selected @2,3 2,3:2,3 | key PageUp -> selected @1,3 1,3:1,3 | key Ctrl+Down -> selected @3,3 3,3:3,3
key F2 -> not taken @3,3 3,3:3,3 | key 5 -> not taken @3,3 3,3:3,3 | key Ctrl+Left -> selected @3,1 3,1:3,1 | key Ctrl+Up -> selected @1,1 1,1:1,1
key PageDown -> selected @3,1 3,1:3,1 | key Up -> selected @2,1 2,1:2,1 | key Shift+Right -> selected @2,1 2,1:2,2
key Enter -> selected @2,1 2,1:2,1 [21] | key Up -> @2,1 2,1:2,1 [22] | key Escape -> @2,1 2,1:2,1 | key F2 -> @2,1 2,1:2,1 [21]
key Down -> @2,1 2,1:2,1 [20] | key Backspace -> @2,1 2,1:2,1 [2] | key 7 -> @2,1 2,1:2,1 [27] | key Enter -> edited 2,1 '27' @2,1 2,1:2,1
key Delete -> @2,1 2,1:2,1 [] | key Backspace -> @2,1 2,1:2,1 [] | key Enter -> edited 2,1 '' @2,1 2,1:2,1 | key Minus -> @2,1 2,1:2,1 [-]
key Shift+A -> @2,1 2,1:2,1 [-A] | key B -> @2,1 2,1:2,1 [-Ab] | key Ctrl+C -> not taken @2,1 2,1:2,1 [-Ab] | key Ctrl+Home -> not taken @2,1 2,1:2,1 [-Ab]
key Escape -> @2,1 2,1:2,1 | key Ctrl+A -> selected @1,1 1,1:3,3 | key Ctrl+End -> selected @3,3 3,3:3,3 | key Ctrl+Home -> selected @1,1 1,1:1,1
)");
}

TEST_F(GridTest, HandsClickDragAndLeave) {
  ExpectSteps(grid, R"(
click 2 2; extend 9 1 -> selected clicked 2,2 selected @2,2 2,1:3,2
right 3 1 -> menu @2,2 2,1:3,2
# Of a heading.
right 0 1 -> menu @2,2 2,1:3,2
right 1 1 -> selected menu @1,1 1,1:1,1
click 0 2; double 2 0 -> @1,1 1,1:1,1
# A locked one.
double 3 2 -> selected @3,2 3,2:3,2
focus; double 2 1 -> selected @2,1 2,1:2,1 [21]
write 9; leave -> edited 2,1 '9' @2,1 2,1:2,1
double 1 1; write 8; click 1 2 -> selected edited 1,1 '8' selected clicked 1,2 @1,2 1,2:1,2
# A field that is open gives its text to its cell before another opens.
double 1 1; write 7; double 2 1 -> selected edited 1,1 '7' selected @2,1 2,1:2,1 [9]
)");
}

TEST_F(GridTest, ScriptsSelectEditAndAreRefused) {
  ExpectSteps(grid, R"(
cell 2 3 -> selected clicked 2,3 @2,3 2,3:2,3
cell 1 2 99 -> selected clicked 1,2 edited 1,2 '99' @1,2 1,2:1,2
range 3 3 2 1 -> selected @3,3 2,1:3,3
popup -> menu @3,3 2,1:3,3
cell 0 1; cell 1 0; cell 4 1; cell 1 4; cell 1; cell 3 3 1; cell 3 2 1; row 1; range 1 1 2 4 ->  cannot cannot cannot cannot cannotselected clicked 3,3  cannotselected clicked 3,2  cannot cannot cannot@3,2 3,2:3,2
read_only; cell 1 1 1 -> selected clicked 1,1  cannot@1,1 1,1:1,1
double 1 1 -> @1,1 1,1:1,1
)");
  EXPECT_EQ(grid.Text(1, 2), "99");
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
  ExpectTold(
      Facts(),
      R"(caption=; grdData(3) count=4; grdData(3)[0] count=4; grdData(3)[0][0]=; grdData(3)[0][1]=; grdData(3)[0][2]=; grdData(3)[0][3]=; grdData(3)[1] count=4; grdData(3)[1][0]=; grdData(3)[1][1]=11; grdData(3)[1][2]=12; grdData(3)[1][3]=13; grdData(3)[2] count=4; grdData(3)[2][0]=; grdData(3)[2][1]=21; grdData(3)[2][2]=22; grdData(3)[2][3]=23; grdData(3)[3] count=4; grdData(3)[3][0]=; grdData(3)[3][1]=31; grdData(3)[3][2]=32; grdData(3)[3][3]=32; grdData(3) row=1; grdData(3) column=1; grdData(3) range=[1|1|1|1]; grdData(3)[1][1] mark=raised; grdData(3)[3][2] locked=true; grdData(3)[3][3] blacked_out=true; txtOther=; )");
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
  plain.SetSize(1, -1);
  EXPECT_THROW(plain.Text(0, 0), std::out_of_range);
}

}  // namespace
}  // namespace tarnview
