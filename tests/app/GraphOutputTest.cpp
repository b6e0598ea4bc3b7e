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
  EXPECT_STORY(story);
  EXPECT_EQ(host.copied, std::vector<const Chart*>(2, &Main().chSampleGraph));
}

}  // namespace
}  // namespace tarnview
