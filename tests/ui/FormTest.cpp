#include "support/Table.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/MenuItem.h"
#include "ui/RecordingHost.h"
#include "ui/Script.h"
#include "ui/ScriptUser.h"
#include "ui/ScrollBar.h"
#include "ui/TextBox.h"
#include "ui/UpDown.h"

namespace tarnview {
namespace {

/// A window that notes what happens to it.
class frmNotes : public Form {
 public:
  explicit frmNotes(Host& itsHost) : Form(itsHost, "frmNotes", "Notes") {
    txtName.Change = [this] { notes += " change:" + txtName.Text(); };
    txtName.GotFocus = [this] { notes += " got"; };
    txtName.LostFocus = [this] { notes += " lost"; };
    chkOn.Click = [this] { notes += chkOn.Value ? " on" : " off"; };
    cboSize.Change = [this] { notes += " size:" + cboSize.Text(); };
    cboSize.Click = [this] { notes += " chosen"; };
    hsbPlace.Change = [this] { notes += " place:" + std::to_string(hsbPlace.Value()); };
    updPlace.UpClick = [this] { notes += " up"; };
    mnuGoto.Click = [this] { notes += " goto"; };
    cmdOK.Click = [this] { notes += " ok"; };
    cmdCancel.Click = [this] { notes += " cancel"; };
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancel;
  }

  std::string Notes() { return std::exchange(notes, ""); }

  std::string notes;
  bool mayClose = true;
  bool eats = false;

  TextBox txtName{*this, "txtName"};
  CheckBox chkOn{*this, "chkOn", "On"};
  ComboBox cboSize{*this, "cboSize"};
  ScrollBar hsbPlace{*this, "hsbPlace"};
  UpDown updPlace{*this, "updPlace"};
  MenuItem mnuGoto{*this, "mnuGoto", "&Goto...", "Ctrl+G"};
  ControlArray<MenuItem> mnuRecent{
      *this, "mnuRecent", {0, 2}, std::string("recent"), std::string()};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

 protected:
  void Form_Load() override { notes += " load"; }
  bool Form_QueryUnload() override {
    notes += " query";
    return mayClose;
  }
  void Form_Unload() override { notes += " unload"; }
  bool Form_KeyDown(const KeyPress& key) override {
    notes += " key:" + key.key;
    return eats;
  }
};

class FormTest : public testing::Test {
 protected:
  /// Steps of a script, "; " between them, and "code WHAT NAME" for what code does: the notes.
  std::string Done(const TableRow& row) {
    for (const std::string& step : SplitAt(row.All(), "; ")) {
      const auto words = ParseScript(step)[0].words;
      try {
        if (words[0] == "code")
          Code(words);
        else if (!user.Do(words))
          user.Work(words);
      } catch (const CannotDo&) {
        form.notes += " cannot";
      }
    }
    return form.Notes();
  }
  void Code(const std::vector<std::string>& words) {
    Control* const control = words.size() > 2 ? form.Find(words[2]) : nullptr;
    if (words[1] == "focus") form.SetFocus(control);
    if (words[1] == "on" || words[1] == "off") control->Enabled = words[1] == "on";
    if (words[1] == "hide") control->Visible = false;
    if (words[1] == "text") form.txtName.Text = words[3];
    if (words[1] == "press" && !form.Press(*ParseKeys(words[2]))) form.notes += " not taken";
    if (words[1] == "eats") form.eats = words[2] == "yes";
  }

  RecordingHost host;
  frmNotes form{host};
  ScriptUser user{host};
};

TEST_F(FormTest, CodeAndHandRaiseTheSameEventsAndWhatCannotBeDoneIsRefused) {
  form.Show();
  form.cboSize.SetList({"small", "large"});
  EXPECT_EQ(form.hsbPlace.LargeChange, 1);
  form.hsbPlace.Max = 50;
  form.Notes();
  ExpectTable([this](const TableRow& row) { return Done(row); }, R"(
code text txtName a; code text txtName a ->  change:a | type txtName b ->  got change:b lost | click chkOn; click chkOn ->  on off
choose cboSize large ->  size:large chosen | choose cboSize #0 ->  size:small chosen | scroll hsbPlace 7 ->  place:7 | scroll hsbPlace 9000 ->  place:50 | step updPlace up ->  up
choose cboSize huge ->  cannot | choose cboSize #2 ->  cannot | scroll hsbPlace far ->  cannot | step updPlace sideways ->  cannot | click txtName ->  got cannot | type txtName ->  cannot
code off cmdOK; click cmdOK ->  cannot | code hide mnuGoto; click mnuGoto ->  cannot
)");
  form.chkOn.Value = true;
  form.cboSize.SetListIndex(1);
  form.hsbPlace.Value = 8;
  EXPECT_EQ(form.Notes(), " on size:large chosen place:8");
}

TEST_F(FormTest, KeysGoToTheWindowThenTheControlThenButtonsAndMenus) {
  form.txtName.KeyDown = [&](const KeyPress& key, bool& eaten) { eaten = key.key == "G"; };
  form.txtName.LostFocus = [&] {
    form.notes += " lost";
    if (form.txtName.Text->empty()) form.txtName.SetFocus();
  };
  ExpectTable([this](const TableRow& row) { return Done(row); }, R"(
code press Enter; code press Escape ->  key:Enter ok key:Escape cancel
# A field that keeps the caret keeps the button from it.
code focus txtName; code press Enter ->  got key:Enter lost got
code text txtName a; code press Enter; code press Enter ->  change:a key:Enter lost ok key:Enter ok
code focus cmdCancel; code press Enter ->  key:Enter cancel
# With Shift it is another key.
code focus nothing; code press Shift+Enter ->  key:Enter not taken | code off cmdOK; code press Enter ->  key:Enter not taken
code press ctrl+g ->  key:G goto | code focus txtName; code press Ctrl+G ->  got key:G
code focus nothing; code eats yes; code press Ctrl+G ->  lost key:G
code eats no; code off mnuGoto; code press Ctrl+G ->  key:G not taken
)");
}

TEST_F(FormTest, FocusLeavesOneControlBeforeItEntersTheNext) {
  form.chkOn.GotFocus = [&] { form.notes += " chk"; };
  const auto told = [this](const TableRow& row) { return Done(row); };
  ExpectTable(told, R"(
code focus txtName; code focus txtName; code focus chkOn ->  got lost chk
)");
  // A field whose check fails takes the focus back.
  form.txtName.LostFocus = [&] { form.txtName.SetFocus(); };
  form.txtName.SetFocus();
  form.Notes();
  form.chkOn.SetFocus();
  EXPECT_EQ(form.ActiveControl(), &form.txtName);
  EXPECT_EQ(form.Notes(), " got");
}

TEST_F(FormTest, OpensOnceAndClosesWhenItAgrees) {
  EXPECT_TRUE(form.Unload());  // is not open
  form.Show();
  form.Show();
  EXPECT_EQ(host.Front(), &form);
  EXPECT_EQ(host.open.size(), 1u);
  form.mayClose = false;
  EXPECT_FALSE(form.Unload());
  EXPECT_TRUE(form.IsShown());
  form.mayClose = true;
  form.txtName.SetFocus();
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(host.Front(), nullptr);
  EXPECT_EQ(form.Notes(), " load query got lost query unload");
}

TEST_F(FormTest, FindsControlsByNameAndIndex) {
  EXPECT_EQ(form.Find("txtName"), &form.txtName);
  EXPECT_EQ(form.Find("mnuRecent", 2), &form.mnuRecent(2));
  EXPECT_EQ(form.mnuRecent(0).FullName(), "mnuRecent(0)");
  EXPECT_EQ(form.Find("mnuRecent", 1), nullptr);
  EXPECT_EQ(form.Find("mnuRecent"), nullptr);
  EXPECT_EQ(form.Find("txtname"), nullptr);
}

TEST_F(FormTest, WidgetsHearOfChangesFromCode) {
  std::string heard;
  form.txtName.Watch([&](What what) {
    heard += what == What::Content ? "c" : what == What::State ? "s" : "f";
  });
  form.txtName.Text = "x";
  form.txtName.Enabled = false;
  form.txtName.Enabled = false;
  form.txtName.SetFocus();
  EXPECT_EQ(heard, "csf");
}

TEST(Keys, AreReadByName) {
  for (const char* text : {"", "Ctrl+", "Ctrl", "Meta+A", "F13", "++", "Bsc", "\xe9"})
    EXPECT_FALSE(ParseKeys(text)) << text;
  const KeyPress shifted{"PageUp", true, true, true};
  EXPECT_EQ(ParseKeys("shift+CTRL+Alt+pageup"), shifted);
  EXPECT_EQ(ParseKeys("Esc")->key, "Escape");
  EXPECT_EQ(ParseKeys("q")->key, "Q");
}

TEST(FormFocus, TwoFieldsThatRefuseTheirTextsDoNotThrowItToAndFro) {
  RecordingHost host;
  struct TwoFields : Form {
    explicit TwoFields(Host& itsHost) : Form(itsHost, "frmTwo", "") {}
    TextBox txtFirst{*this, "txtFirst"};
    TextBox txtSecond{*this, "txtSecond"};
  } form(host);
  std::string left;
  form.txtFirst.LostFocus = [&] {
    left += "first ";
    form.txtFirst.SetFocus();
  };
  form.txtSecond.LostFocus = [&] {
    left += "second ";
    form.txtSecond.SetFocus();
  };
  form.txtFirst.SetFocus();
  form.txtSecond.SetFocus();
  EXPECT_EQ(form.ActiveControl(), &form.txtFirst);
  EXPECT_EQ(left, "first ");
}

}  // namespace
}  // namespace tarnview
