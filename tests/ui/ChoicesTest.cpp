#include <gtest/gtest.h>

#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/OptionButton.h"
#include "ui/RecordingHost.h"
#include "ui/TabStrip.h"

namespace tarnview {
namespace {

TEST(OptionButton, OneOfAFrameIsOn) {
  RecordingHost host;
  Form form(host, "frmChoice", "Choice");
  OptionButton targets(form, "radBoost", "fraUnit", "Targets", 0),
      duty(form, "radBoost", "fraUnit", "Duty", 1);
  OptionButton other(form, "radOther", "fraOther", "Other");
  std::string notes;
  targets.Click = [&] { notes += "targets "; };
  duty.Click = [&] { notes += targets.Value ? "both " : "duty "; };
  other.Value = true;
  targets.Value = true;
  duty.Do({"click", {}});
  duty.Do({"click", {}});
  EXPECT_EQ(notes, "targets duty ");
  EXPECT_FALSE(targets.Value);
  EXPECT_TRUE(other.Value) << "another frame's";
  // A window that takes the choice back.
  targets.Click = [&] { duty.Value = true; };
  targets.Do({"click", {}});
  EXPECT_TRUE(duty.Value);
  EXPECT_FALSE(targets.Value);
  duty.Value = false;
  EXPECT_FALSE(targets.Value) << "none may be on";
}

TEST(TabStrip, ShowsThePageOfItsTab) {
  RecordingHost host;
  Form form(host, "frmTabs", "Tabs");
  Frame general(form, "fraGeneral"), fuel(form, "fraFuel"), notes(form, "fraNotes");
  TabStrip tabs(form, "tabPages");
  const auto shown = [&] {
    return std::to_string(tabs.Selected()) + (general.Visible ? " general" : "") +
           (fuel.Visible ? " fuel" : "") + (notes.Visible ? " notes" : "");
  };
  int clicks = 0;
  tabs.Click = [&] { ++clicks; };
  tabs.SetTabs({{"&General", &general}, {"F&uel", &fuel}, {"Notes", &notes}, {"All"}});
  EXPECT_EQ(shown(), "1 general");
  tabs.Do({"tab", {"Fuel"}});
  EXPECT_EQ(shown(), "2 fuel");
  tabs.Do({"tab", {"#2"}});
  EXPECT_EQ(shown(), "3 notes");
  tabs.Do({"tab", {"All"}});
  EXPECT_EQ(shown(), "4");
  EXPECT_EQ(clicks, 3);
  tabs.Select(4);
  tabs.Select(0);
  tabs.Select(5);
  EXPECT_EQ(clicks, 3);
  EXPECT_THROW(tabs.Do({"tab", {"Ignition"}}), CannotDo);
  EXPECT_THROW(tabs.Do({"click", {"Fuel"}}), CannotDo);
  tabs.SetTabs({{"Fuel", &fuel}});
  EXPECT_EQ(shown(), "1 fuel");
  tabs.SetTabs({});
  EXPECT_EQ(shown(), "0");
}

}  // namespace
}  // namespace tarnview
