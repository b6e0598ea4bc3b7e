// What may run in the main window, and what is left to the desktop.

#include <set>

#include "support/ProgramFixture.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

class Menus : public ProgramFixture {
 protected:
  std::set<std::string> Enabled() {
    std::set<std::string> names;
    for (const Control* control : Main().Controls())
      if (control->Enabled()) names.insert(control->FullName());
    return names;
  }
};

TEST_F(Menus, WithTheirWindowsAreAsTheyAreToldWhole) {
  story.Verb("whole", [this](const auto&) { ExpectWhole(*host.Front(), TARNVIEW_TESTS); });
  Open(20);
  EXPECT_STORY(story);
}

/// Which of the controls that a command has come on and go off, step by step through a log.
TEST_F(Menus, WhatMayRunFollowsWhatIsThere) {
  files.files["/logs/run.txt"] = SmallLog(200);
  Start("", "[General]\nLog EXE=/L.exe\n");
  story.Event("may run", [this, before = Enabled()]() mutable {
    std::string told;
    const std::set<std::string> now = Enabled();
    for (const std::string& name : now) told += before.contains(name) ? "" : " +" + name;
    for (const std::string& name : before) told += now.contains(name) ? "" : " -" + name;
    before = now;
    return told;
  });
  EXPECT_STORY(story);
}

TEST_F(Menus, DataLogViewOpensTheLogItself) {
  Open(20);
  Do("click mnuToolsDataLogView");
  EXPECT_EQ(processes.opened, std::vector<std::string>{"/logs/run.txt"});
}

}  // namespace
}  // namespace tarnview
