#include <gtest/gtest.h>

#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/MenuItem.h"
#include "ui/RecordingHost.h"
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
  RecordingHost host;
  frmNotes form{host};
};

TEST_F(FormTest, CodeAndHandRaiseTheSameEvents) {
  form.txtName.Text = "a";
  form.txtName.Text = "a";  // no change
  EXPECT_EQ(form.Notes(), " change:a");
  form.txtName.Do({"type", {"b"}});
  EXPECT_EQ(form.Notes(), " got change:b lost");

  form.chkOn.Value = true;
  form.chkOn.Do({"click", {}});
  EXPECT_EQ(form.Notes(), " on off");

  form.cboSize.SetList({"small", "large"});
  form.cboSize.SetListIndex(1);
  EXPECT_EQ(form.Notes(), " size:large chosen");
  form.cboSize.Do({"choose", {"#0"}});
  EXPECT_EQ(form.Notes(), " size:small chosen");
  form.cboSize.Do({"choose", {"large"}});
  EXPECT_EQ(form.cboSize.ListIndex(), 1);
  EXPECT_EQ(form.Notes(), " size:large chosen");

  EXPECT_EQ(form.hsbPlace.LargeChange, 1);
  form.hsbPlace.Value = 7;
  form.hsbPlace.Max = 50;
  form.hsbPlace.Do({"scroll", {"9000"}});
  EXPECT_EQ(form.Notes(), " place:7 place:50");
  form.updPlace.Do({"step", {"up"}});
  EXPECT_EQ(form.Notes(), " up");
}

TEST_F(FormTest, WhatAUserCannotDoIsRefused) {
  form.cmdOK.Enabled = false;
  form.mnuGoto.Visible = false;
  EXPECT_THROW(form.cmdOK.Do({"click", {}}), CannotDo);
  EXPECT_THROW(form.mnuGoto.Do({"click", {}}), CannotDo);
  EXPECT_THROW(form.txtName.Do({"click", {}}), CannotDo);
  EXPECT_THROW(form.txtName.Do({"type", {}}), CannotDo);
  EXPECT_THROW(form.cboSize.Do({"choose", {"huge"}}), CannotDo);
  EXPECT_THROW(form.cboSize.Do({"choose", {"#0"}}), CannotDo);
  EXPECT_THROW(form.hsbPlace.Do({"scroll", {"far"}}), CannotDo);
  EXPECT_THROW(form.updPlace.Do({"step", {"sideways"}}), CannotDo);
  EXPECT_EQ(form.txtName.Text(), "");
}

TEST_F(FormTest, EnterAndEscapePressTheirButtons) {
  EXPECT_TRUE(form.Press({"Enter"}));
  EXPECT_TRUE(form.Press({"Escape"}));
  EXPECT_EQ(form.Notes(), " key:Enter ok key:Escape cancel");
  form.txtName.SetFocus();
  form.txtName.LostFocus = [&] {
    form.notes += " lost";
    if (form.txtName.Text->empty()) form.txtName.SetFocus();
  };
  form.Press({"Enter"});
  EXPECT_EQ(form.Notes(), " got key:Enter lost got")
      << "a field that keeps the caret keeps the button from it";
  form.txtName.Text = "a";
  form.Press({"Enter"});
  form.Press({"Enter"});
  form.cmdCancel.SetFocus();
  form.Press({"Enter"});
  EXPECT_EQ(form.Notes(), " change:a key:Enter lost ok key:Enter ok key:Enter cancel");
  form.SetFocus(nullptr);
  EXPECT_FALSE(form.Press({"Enter", true}));  // with Shift it is another key
  form.cmdOK.Enabled = false;
  EXPECT_FALSE(form.Press({"Enter"}));
  EXPECT_EQ(form.Notes(), " key:Enter key:Enter");
}

TEST_F(FormTest, AKeyGoesToWindowThenControlThenMenu) {
  form.txtName.KeyDown = [&](const KeyPress& key, bool& eaten) { eaten = key.key == "G"; };
  EXPECT_TRUE(form.Press(*ParseKeys("ctrl+g")));
  EXPECT_EQ(form.Notes(), " key:G goto");
  form.txtName.SetFocus();
  EXPECT_TRUE(form.Press(*ParseKeys("Ctrl+G")));  // the field eats it
  EXPECT_EQ(form.Notes(), " got key:G");
  form.SetFocus(nullptr);
  form.eats = true;
  EXPECT_TRUE(form.Press(*ParseKeys("Ctrl+G")));
  EXPECT_EQ(form.Notes(), " lost key:G");
  form.eats = false;
  form.mnuGoto.Enabled = false;
  EXPECT_FALSE(form.Press(*ParseKeys("Ctrl+G")));
}

TEST_F(FormTest, FocusLeavesOneControlBeforeItEntersTheNext) {
  form.chkOn.GotFocus = [&] { form.notes += " chk"; };
  form.txtName.SetFocus();
  form.txtName.SetFocus();
  form.chkOn.SetFocus();
  EXPECT_EQ(form.Notes(), " got lost chk");
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
  for (const char* text : {"", "Ctrl+", "Ctrl", "Meta+A", "F13", "++", "\xe9"})
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
