// The road of one file in the main window: choosing, loading, what a load clears and sets up.

#include "support/ProgramFixture.h"
#include "support/Table.h"

namespace tarnview {
namespace {

class OpenFile : public ProgramFixture {
 protected:
  OpenFile() {
    Fact("top", [this] { return Main().mnuRecentlyUsed(0).Tag; });
    Fact("rows", [this] { return std::to_string(Log().glngDataLog.Rows()); });
    Fact("ends", [this] {
      return std::to_string(Log().glngFirstSampleTime) + " " +
             std::to_string(Log().glngLastSampleTime);
    });
  }
};

TEST_F(OpenFile, ALogOnTheCommandLineIsLoadedAndDrawn) {
  files.files["/logs/run.txt"] = SmallLog(40);
  files.here = "/logs/";
  EXPECT_STORY(story);
}

TEST_F(OpenFile, WhatDoesNotLoadIsToldAndLeavesNoLog) {
  files.files["/logs/two.txt"] = SmallLog(2);
  files.files["/logs/empty.txt"] = "";
  files.files["/logs/other.txt"] = "RPM;MAP\r\n";
  files.files["/logs/giant.txt"] = "";
  files.broken.insert("/logs/giant.txt");
  files.files["/logs/line.txt"] = "Sample" + std::string(16 << 20, '\0');
  files.files["/logs/good.txt"] = SmallLog(3);
  Start();
  story.Event("because", [this] {
    std::string told;
    for (const Box& box : std::exchange(host.messages, {}))
      if (box.id == 15) told = box.text.substr(box.text.find('.') + 1);
    return told;
  });
  EXPECT_STORY(story);
}

TEST_F(OpenFile, AMarkInFrontAndLinesThatEndInCRAreNoFault) {
  std::string log = SmallLog(5);
  files.files["/logs/mark.txt"] = "\xEF\xBB\xBF" + log;
  std::erase(log, '\n');
  files.files["/logs/cr.txt"] = log;
  files.folders = {"/logs"};
  Start();
  story.Verb("content", [this](const auto& words) { Main().Files().OpenByContent(words[0]); });
  EXPECT_STORY(story);
}

TEST_F(OpenFile, TheDialogStartsAtTheLastFileAndItsTypeDecides) {
  files.files["/logs/run.dat"] = SmallLog(5);
  Start();
  host.answers.push_back({Answer::Kind::File, "/logs/run.dat", 0, 1});
  EXPECT_STORY(story);
}

/// Settings, and what stands after a log was opened: the range, the graph, and the words in its
/// place.
TEST_F(OpenFile, TheFirstRangeFollowsWarmthAndWidthAndIsDrawnWhereThatIsWanted) {
  std::string warming = SmallLog(64);
  // The first summary, behind sample 16, is still cold.
  warming.replace(warming.find("     80 AT"), 10, "      5 AT");
  files.files["/logs/run.txt"] = warming;
  const auto opened = [this](const TableRow& row) {
    Start("", "[General]\n" + row.Lines() + "\n");
    Main().LoadDataFile("/logs/run.txt", 0);
    return Range() + ", " + Graph() + ", " + Main().lblEmptyPlace.Caption();
  };
  ExpectTable(opened, R"(
Plot From Temperature=50 -> 27-64, none, Press Draw, or Enter
Plot From Temperature=99 -> 1-64, none, Press Draw, or Enter
Plot From Temperature=50; Initial Plot Width=20 -> 27-47, none, Press Draw, or Enter
Plot From Temperature=50; Initial Plot Width=38 -> 27-64, none, Press Draw, or Enter
Plot From Temperature=99; Initial Plot Width=20 -> 1-21, none, Press Draw, or Enter
Initial Plot Width=1 -> 1-64, none, Press Draw, or Enter
Checked Data Items=3; [Beyond]; Draw After Opening=Y -> 1-64, 1-64 at 32, Press Draw, or Enter
Checked Data Items=56; [Beyond]; Draw After Opening=Y -> 1-64, none, Press Draw, or Enter
)");
}

TEST_F(OpenFile, WithoutQuickGraphALongLogIsShortenedInSilence) {
  Open(1500);
  EXPECT_STORY(story);
}

TEST_F(OpenFile, EditedZonesAreProtected) {
  Open(5);
  program->Global().log.gblnZonesDirty = true;
  // That they are saved before the window closes is refused: there is no map here.
  EXPECT_STORY(story);
  EXPECT_EQ(host.messages[0].text, "Do you want to save the changes made to run.txt?");
  EXPECT_EQ(host.messages[0].style, 51);
}

}  // namespace
}  // namespace tarnview
