// What the main window hands out of its graph.

#include <gmock/gmock.h>

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using ::testing::ElementsAre;

class GraphOutput : public ProgramFixture {
 protected:
  // The program goes before its desktop.
  ~GraphOutput() override { program.reset(); }
  void OpenAndDraw() {
    files.files["/logs/run.txt"] = SmallLog(50);
    Start("", "[General]\r\nChecked Data Items=3,5\r\n");
    Main().LoadDataFile("/logs/run.txt", 0);
  }
  std::vector<MenuItem*> Commands() {
    return {&Main().mnuCopy,
            &Main().mnuFilePrint,
            &Main().mnuFilePrintPreview,
            &Main().mnuFileSavePicture,
            &Main().mnuRightClickCopy,
            &Main().mnuRightClickPrint};
  }
};

TEST_F(GraphOutput, NothingIsHandedOutBeforeAGraphWasDrawn) {
  OpenAndDraw();
  for (const MenuItem* item : Commands()) EXPECT_FALSE(item->Enabled()) << item->name;
  Main().cmdDrawGraph.Press();
  for (const MenuItem* item : Commands()) EXPECT_TRUE(item->Enabled()) << item->name;
  Main().LoadDataFile("/logs/run.txt", 0);
  for (const MenuItem* item : Commands()) EXPECT_FALSE(item->Enabled()) << item->name;
}

TEST_F(GraphOutput, ThePageTellsFileAndRangeAsTheGraphWasDrawn) {
  OpenAndDraw();
  Main().PlotRangeFrom.Do({"type", {"11"}});
  Main().PlotRangeTo.Do({"type", {"31"}});
  Main().cmdDrawGraph.Press();
  Main().PlotRangeTo.Do({"type", {"40"}});
  host.answers = {{Answer::Kind::Printer}, {Answer::Kind::Printer}};
  for (MenuItem* item :
       {&Main().mnuFilePrint, &Main().mnuFilePrintPreview, &Main().mnuRightClickPrint})
    item->Do({"click", {}});
  ASSERT_EQ(host.pages.size(), 3u);
  std::vector<std::string> texts;
  for (const auto& text : host.pages[0].texts) texts.push_back(text.text);
  const OpenLog& log = Log();
  EXPECT_THAT(texts, ElementsAre("Tarnview Sample Graph", "File : ", "/logs/run.txt",
                                 "Sample Range From : ", "11 to 31", "Time Range From : ",
                                 log.FormatDataItem(63, 10) + " secs to " +
                                     log.FormatDataItem(63, 30) + " secs"));
}

TEST_F(GraphOutput, TheGraphIsCopiedAndSavedUnderTheLogsName) {
  OpenAndDraw();
  Main().cmdDrawGraph.Press();
  for (MenuItem* item : {&Main().mnuCopy, &Main().mnuRightClickCopy}) item->Do({"click", {}});
  EXPECT_THAT(host.copied, ElementsAre(&Main().chSampleGraph, &Main().chSampleGraph));
  host.answers = {{Answer::Kind::Ok}};
  Main().mnuFileSavePicture.Do({"click", {}});
  EXPECT_THAT(host.pictures, ElementsAre("/logs/run.png"));
}

}  // namespace
}  // namespace tarnview
