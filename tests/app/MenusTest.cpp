// The menus of the windows: no two entries of one menu answer to the same letter, and what is left
// to the desktop.

#include <set>

#include "support/ProgramFixture.h"

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

TEST_F(Menus, EachEntryHasALetterOfItsOwn) {
  files.files["/logs/run.txt"] = SmallLog(20);
  Start("/logs/run.txt");
  for (const char* menu :
       {"mnuFile", "mnuEdit", "mnuView", "mnuModules", "mnuTools", "mnuCustomise", "mnuRightClick"})
    ExpectOwnLetters(Main(), menu);
  Main().mnuModulesScatterGraph.Click();
  for (const char* menu : {"mnuFile", "mnuEdit", "mnuView", "mnuRightClick"})
    ExpectOwnLetters(*host.Front(), menu);
}

TEST_F(Menus, DataLogViewOpensTheLogItself) {
  files.files["/logs/run.txt"] = SmallLog(20);
  Start();
  EXPECT_FALSE(Main().mnuToolsDataLogView.Enabled());
  Main().LoadDataFile("/logs/run.txt", 0);
  Main().mnuToolsDataLogView.Click();
  EXPECT_EQ(processes.opened, std::vector<std::string>{"/logs/run.txt"});
}

}  // namespace
}  // namespace tarnview
