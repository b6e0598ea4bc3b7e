#include "ui/Frame.h"
#include "ui/OptionButton.h"
#include "ui/Steps.h"
#include "ui/TabStrip.h"

namespace tarnview {
namespace {

using ChoicesTest = StepsTest;

TEST_F(ChoicesTest, OneButtonOfAFrameIsOn) {
  OptionButton targets(form, "radBoost", "fraUnit", "Targets", 0),
      duty(form, "radBoost", "fraUnit", "Duty", 1);
  OptionButton other(form, "radOther", "fraOther", "Other");
  targets.Click = [&] { notes += "targets "; };
  duty.Click = [&] { notes += targets.Value ? "both " : "duty "; };
  state = [&] {
    return std::string(targets.Value ? "1" : "0") + (duty.Value ? "1" : "0") +
           (other.Value ? "1" : "0");
  };
  verbs = {{"other", [&](const Words&) { other.Value = true; }},
           {"targets", [&](const Words&) { targets.Value = true; }},
           {"none", [&](const Words&) { duty.Value = false; }},
           {"take_back", [&](const Words&) { targets.Click = [&] { duty.Value = true; }; }}};
  ExpectSteps(duty,
              "other -> 001 | targets -> targets 101 | click; click -> duty 011 | take_back; "
              "targets -> duty 011 | none -> 001");
}

TEST_F(ChoicesTest, ATabShowsItsPage) {
  Frame general(form, "fraGeneral"), fuel(form, "fraFuel"), other(form, "fraNotes");
  TabStrip tabs(form, "tabPages");
  tabs.Click = [this] { notes += "click "; };
  state = [&] {
    return std::to_string(tabs.Selected()) + (general.Visible ? " general" : "") +
           (fuel.Visible ? " fuel" : "") + (other.Visible ? " notes" : "");
  };
  verbs = {{"all",
            [&](const Words&) {
              tabs.SetTabs({{"&General", &general}, {"F&uel", &fuel}, {"Notes", &other}, {"All"}});
            }},
           {"fuel",
            [&](const Words&) {
              tabs.SetTabs({{"Fuel", &fuel}});
            }},
           {"none", [&](const Words&) { tabs.SetTabs({}); }},
           {"select", [&](const Words& tab) { tabs.Select(std::stoi(tab[0])); }}};
  ExpectSteps(tabs, R"(
all -> 1 general | tab Fuel -> click 2 fuel | tab #2 -> click 3 notes | tab All -> click 4 | select 4; select 0; select 5 -> 4 | tab Ignition ->  cannot4 | click Fuel ->  cannot4 | fuel -> 1 fuel | none -> 0
)");
}

}  // namespace
}  // namespace tarnview
