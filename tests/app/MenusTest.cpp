// The menus of the windows: no two entries of one menu answer to the same letter, and what is left
// to the desktop.

#include <set>

#include "support/ProgramFixture.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

/// The letter behind "&"; 0 for none.
int LetterOf(const std::string& caption) {
  const auto mark = caption.find('&');
  return mark == std::string::npos ? 0
                                   : std::toupper(static_cast<unsigned char>(caption[mark + 1]));
}

class Menus : public ProgramFixture {
 protected:
  std::set<std::string> Enabled() {
    std::set<std::string> names;
    for (const Control* control : Main().Controls())
      if (control->Enabled()) names.insert(control->FullName());
    return names;
  }
  void ExpectOwnLetters(const Form& form, const std::string& menu) {
    std::set<int> seen;
    for (const Control* control : form.Controls()) {
      const auto* item = dynamic_cast<const MenuItem*>(control);
      if (!item || item->index >= 0 || item->name == menu || !item->name.starts_with(menu))
        continue;
      const int letter = LetterOf(item->Caption());
      EXPECT_TRUE(letter == 0 || seen.insert(letter).second) << form.name << " " << item->Caption();
    }
  }
};

TEST_F(Menus, AndAllElseOfTheirWindowsIsAsItIsToldWhole) {
  story.Verb("whole", [this](const auto&) { ExpectWhole(*host.Front(), TARNVIEW_TESTS); });
  Open(20);
  EXPECT_STORY(story);
}

TEST_F(Menus, EachEntryHasALetterOfItsOwn) {
  Open(20);
  for (const char* menu :
       {"mnuFile", "mnuEdit", "mnuView", "mnuModules", "mnuTools", "mnuCustomise", "mnuRightClick"})
    ExpectOwnLetters(Main(), menu);
  Main().mnuModulesScatterGraph.Click();
  for (const char* menu : {"mnuFile", "mnuEdit", "mnuView", "mnuRightClick"})
    ExpectOwnLetters(*host.Front(), menu);
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
