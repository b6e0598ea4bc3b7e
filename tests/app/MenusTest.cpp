// The menus of the windows: no two entries of one menu answer to the same letter, and what is left
// to the desktop.

#include <set>
#include <utility>

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
  const auto enabled = [&] {
    std::set<std::string> names;
    for (const Control* control : Main().Controls())
      if (control->Enabled()) names.insert(control->FullName());
    return names;
  };
  const std::set<std::string> atFirst = enabled();
  std::set<std::string> before = atFirst;
  std::string told, line;
  const auto add = [&](const std::string& word) {
    if (line.size() + word.size() > 90) told += std::exchange(line, "") + "\n ";
    line += " " + word;
  };
  const auto tell = [&](const char* what) {
    const std::set<std::string> now = enabled();
    told += what;
    for (const std::string& name : now)
      if (!before.contains(name)) add("+" + name);
    for (const std::string& name : before)
      if (!now.contains(name)) add("-" + name);
    told += std::exchange(line, "") + "\n";
    before = now;
  };
  Main().LoadDataFile("/logs/run.txt", 0);
  tell("open:");
  Do("click cmdDrawGraph");
  tell("drawn:");
  Draw("51", "150");
  tell("in the middle:");
  Do("click mnuViewStart");
  tell("at the start:");
  Do("click mnuViewFinish");
  tell("at the end:");
  Draw("51", "53");
  tell("three samples:");
  Main().LoadDataFile("/logs/none.txt", 0);
  EXPECT_EQ(enabled(), atFirst);
  EXPECT_EQ(
      told,
      R"(open: +cmdDrawGraph +fraGraphSeriesFrame +fraZoneInfl +hsbGraphScroll +hsbGraphScrollLarge
  +mnuEditNewPreset +mnuFileExport +mnuModulesPowerGraph +mnuModulesScatterGraph
  +mnuRightClickDrawGraph +mnuToolsDataLogView +mnuViewTags +mnuViewZoneInfl
  +updPlotRangeFrom +updPlotRangeTo
drawn: +cmdDataPointLeft +cmdDataPointRight +cmdZoomIn +mnuCopy +mnuFilePrint
  +mnuFilePrintPreview +mnuFileSavePicture +mnuRightClickCopy +mnuRightClickGoto
  +mnuRightClickNewDataTag +mnuRightClickPlotFrom +mnuRightClickPlotFromAnd
  +mnuRightClickPlotTo +mnuRightClickPlotToAnd +mnuRightClickPrint +mnuRightClickZoomIn
  +mnuViewGoto +mnuViewNewDataTag +mnuViewZoomIn
in the middle: +cmdZoomFull +cmdZoomOut +mnuRightClickPrevGraph +mnuRightClickZoomOut
  +mnuRightClickZoomOutFull +mnuViewFinish +mnuViewPageLeft +mnuViewPageRight
  +mnuViewPrevious +mnuViewScrollLeft +mnuViewScrollRight +mnuViewStart +mnuViewZoomFull
  +mnuViewZoomOut
at the start: -mnuViewPageLeft -mnuViewScrollLeft -mnuViewStart
at the end: +mnuViewPageLeft +mnuViewScrollLeft +mnuViewStart -mnuViewFinish -mnuViewPageRight
  -mnuViewScrollRight
three samples: +mnuViewFinish +mnuViewPageRight +mnuViewScrollRight -cmdZoomIn -mnuRightClickZoomIn
  -mnuViewZoomIn
)");
}

TEST_F(Menus, DataLogViewOpensTheLogItself) {
  Open(20);
  Do("click mnuToolsDataLogView");
  EXPECT_EQ(processes.opened, std::vector<std::string>{"/logs/run.txt"});
}

}  // namespace
}  // namespace tarnview
