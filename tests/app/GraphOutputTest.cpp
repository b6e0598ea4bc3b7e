// What the main window hands out of its graph.

#include <gmock/gmock.h>

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using ::testing::ElementsAre;

class GraphOutput : public ProgramFixture {
 protected:
  GraphOutput() { Open(50, "[General]\r\nChecked Data Items=3,5\r\n"); }
};

TEST_F(GraphOutput, ThePageTellsFileAndRangeAsTheGraphWasDrawn) {
  Draw("11", "31");
  host.answers = {{Answer::Kind::Printer}, {Answer::Kind::Printer}};
  Do("type PlotRangeTo 40\nclick mnuFilePrint\nclick mnuFilePrintPreview\n"
     "click mnuRightClickPrint");
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
  Do("click cmdDrawGraph\nclick mnuCopy\nclick mnuRightClickCopy");
  EXPECT_THAT(host.copied, ElementsAre(&Main().chSampleGraph, &Main().chSampleGraph));
  host.answers = {{Answer::Kind::Ok}};
  Do("click mnuFileSavePicture");
  EXPECT_THAT(host.pictures, ElementsAre("/logs/run.png"));
}

}  // namespace
}  // namespace tarnview
