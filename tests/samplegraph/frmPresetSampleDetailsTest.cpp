#include "samplegraph/frmPresetSampleDetails.h"
#include "support/PresetWindows.h"
#include "support/Story.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

class PresetDetailsTest : public PresetWindowsTest {
 protected:
  PresetDetailsTest() {
    preset.strName = "Boost";
    preset.lngLogFamily = 1;
    preset.colDataItems = {5, 3};
    preset.lngGraphMax = 10;
    window.emplace(host, Surroundings(), preset);
    story.Fact("ticked", [this] { return Ticked(); });
    story.Fact("disk", [this] { return Join(files.accesses, ", "); });
    story.PassOver("lvwDataItems");
    window->Show();
  }
  std::string Ticked() const {
    std::vector<std::string> items;
    for (const auto& row : window->lvwDataItems.Rows())
      if (row.checked) items.push_back(row.tag);
    return Join(items, " ");
  }
  void File(const std::string& name, const std::string& lines) {
    files.files[name] = "Preset Sample Graph Details:\n" + lines;
  }

  clsSampleGraphPreset preset;
  std::optional<frmPresetSampleDetails> window;
  Story story{host};
};

TEST_F(PresetDetailsTest, EditsAPreset) {
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
  EXPECT_TRUE(window->Accepted());
  EXPECT_EQ(window->ColItem().strName, "All");
  EXPECT_EQ(window->ColItem().lngLogFamily, 6);
  EXPECT_EQ(window->ColItem().lngGraphMax, 35);
  EXPECT_TRUE(window->ColItem().blnFixGraphMax);
}

TEST_F(PresetDetailsTest, SavesAndProposesTheSameFileAgain) {
  EXPECT_STORY(story);
  EXPECT_TRUE(files.files["/logs/Boost.sam"].ends_with(
      "Graph 1 Data Items=5,3\r\nGraph 1 Fix Graph Max=N\r\nGraph 1 Graph Max=10\r\n"));
  EXPECT_TRUE(files.files["/p/b.sam"].ends_with("Graph 1 Log Family=1\r\n"));
  files.failWrites = true;
  EXPECT_STORY(story);
}

TEST_F(PresetDetailsTest, LoadsExactlyTheItemsOfAFile) {
  File("/p/a.sam",
       "Graph 1 Name=Knock\nGraph 1 Data Items=20,99,47,21\nGraph 1 Fix Graph Max=Y\n"
       "Graph 1 Graph Max=120");
  File("/p/b.sam", "Graph 1 Name=Other\nGraph 1 Log Family=6");
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
