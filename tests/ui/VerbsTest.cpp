// What a user can do to each kind of control, and that nothing else is taken.

#include "support/Accept.h"
#include "ui/Chart.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/Frame.h"
#include "ui/Grid.h"
#include "ui/Label.h"
#include "ui/ListBox.h"
#include "ui/ListView.h"
#include "ui/MenuItem.h"
#include "ui/OptionButton.h"
#include "ui/Picture.h"
#include "ui/ProgressBar.h"
#include "ui/RecordingHost.h"
#include "ui/ScrollBar.h"
#include "ui/StatusBar.h"
#include "ui/TabStrip.h"
#include "ui/TextBox.h"
#include "ui/Timer.h"
#include "ui/UpDown.h"

namespace tarnview {
namespace {

struct AllKinds : Form {
  explicit AllKinds(Host& itsHost) : Form(itsHost, "frmAll", "") {
    list.SetList({"a", "b"});
    combo.SetList({"a", "b"});
    EXPECT_FALSE(timer.Enabled || menu.Checked);
    timer.Enabled = true;
    tabs.SetTabs({{"A"}, {"B"}});
    ListView::Row row;
    row.texts = {"a", "1"};
    view.SetRows({row});
    grid.SetSize(2, 2);
    ChartDescription data;
    data.kind = Curves{{{3, "RPM", {0, 1}, {5, 6}, {}}}};
    chart.SetData(data);
  }
  CheckBox check{*this, "chk", ""};
  OptionButton option{*this, "opt", "fra", ""};
  CommandButton button{*this, "cmd", ""};
  MenuItem menu{*this, "mnu", ""};
  ListBox list{*this, "lst"};
  ComboBox combo{*this, "cbo"}, editable{*this, "cboTyped", true};
  TextBox text{*this, "txt"};
  UpDown arrows{*this, "upd"};
  ScrollBar scroll{*this, "hsb"};
  Timer timer{*this, "tmr", 10};
  ListView view{*this, "lvw", {{"A"}, {"B"}}, true};
  Grid grid{*this, "grd"};
  Chart chart{*this, "ch"};
  TabStrip tabs{*this, "tab"};
  Label label{*this, "lbl", ""};
  Frame frame{*this, "fra", ""};
  Picture picture{*this, "pic", 9, 9};
  StatusBar status{*this, "sta", 3};
  ProgressBar progress{*this, "pro"};
};

TEST(Verbs, EachKindTakesItsOwn) {
  RecordingHost host;
  AllKinds form(host);
  const Action kActions[] = {{"click", {}},         {"type", {"5"}},   {"choose", {"#0"}},
                             {"step", {"up"}},      {"scroll", {"3"}}, {"row", {"1"}},
                             {"tick", {"1", "on"}}, {"sort", {"A"}},   {"double", {"1"}},
                             {"cell", {"1", "1"}},  {"popup", {}},     {"point", {"1", "1"}},
                             {"wheel", {"1", "2"}}, {"hover", {}},     {"tab", {"B"}},
                             {"nonsense", {}},      {"", {}}};
  // Behind a verb, "*" for each time that the control's content changes, "@" its selection, "^"
  // where it gets the focus.
  std::string told = "\n";
  for (Control* control : form.Controls()) {
    control->Watch([&](What what) {
      if (what == What::Content) told += "*";
      if (what == What::Focus) told += "^";
      if (what == What::Selection) told += "@";
    });
    told += std::string(control->Kind()) + ":";
    for (const Action& action : kActions) {
      const std::string before = told;
      told += " " + action.verb;
      try {
        control->Do(action);
      } catch (const CannotDo&) {
        told = before;
      }
    }
    told += "\n";
  }
  ExpectTold(told, R"(
check box: click^*
option button: click^*
button: click^
menu item: click
list box: choose@
combo box: choose*
combo box: type*
text box: type*
up-down control: step
scroll bar: scroll*
timer: click
list: row@ tick* sort*@ double@
grid: cell popup
chart: double popup point@ wheel hover
tab strip: tab*
label:
frame:
picture:
status bar:
progress bar:
)");
}

}  // namespace
}  // namespace tarnview
