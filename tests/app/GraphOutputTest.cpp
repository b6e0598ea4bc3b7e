// What the main window hands out of its graph.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using GraphOutput = ProgramFixture;

TEST_F(GraphOutput, ThePageTellsFileAndRangeAsTheGraphWasDrawn) {
  Open(50, "[General]\r\nChecked Data Items=3,5\r\n");
  story.Fact("page", [this] {
    std::string told;
    if (host.pages.empty()) return told;
    for (const auto& text : host.pages.back().texts) told += text.text + "|";
    return told;
  });
  EXPECT_STORY(story, R"(
range 11 31 -> graph=11-31 at 21, PlotRangeFrom=11, PlotRangeTo=31, txtYMax=240, staDataLogViewer[0]=Sample: 21, Secs: 1.720
type PlotRangeTo 40; answer printer; click mnuFilePrint -> [printer "" ok], pages=1, graph=11-31 at 0, page=Tarnview Sample Graph|File : |/logs/run.txt|Sample Range From : |11 to 31|Time Range From : |0.901 secs to 2.540 secs|, PlotRangeTo=40
click mnuFilePrintPreview -> pages=2
answer printer; click mnuRightClickPrint -> [printer "" ok], pages=3
click mnuCopy -> copied=1
click mnuRightClickCopy -> copied=2
answer ok; click mnuFileSavePicture -> [save "Save Picture As" of PNG picture (*.png) ok], pictures=/logs/run.png
)");
  EXPECT_EQ(host.copied, std::vector<const Chart*>(2, &Main().chSampleGraph));
}

}  // namespace
}  // namespace tarnview
