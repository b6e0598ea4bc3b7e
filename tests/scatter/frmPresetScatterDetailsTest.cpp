#include "scatter/frmPresetScatterDetails.h"
#include "support/PresetWindows.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

class ScatterDetailsTest : public PresetWindowsTest {
 protected:
  ScatterDetailsTest() {
    clsScatterGraphPreset preset;
    preset.strName = "Boost";
    preset.lngLogFamily = 1;
    preset.lngXAxisDataItem = 3;
    preset.lngYAxisDataItem = 5;
    preset.lngPointSize = 4;
    preset.FileOpenDraw = true;
    preset.objFilters.AddDirect({.dblFrom = 100, .lngDataItemSeq = 5});
    preset.objFilters.AddDirect({.dblTo = 9, .dblFrom = 1, .lngDataItemSeq = 15});
    Open(preset);
    // The text of a file to load: lines with "/" between them.
    story.Verb("file", [this](const auto& words) {
      std::string lines = words[0];
      std::replace(lines.begin(), lines.end(), '/', '\n');
      files.files["/p/a.sca"] = "Preset Scatter Graph Details:\r\n" + lines;
    });
    story.Verb("failWrites", [this](const auto&) { files.failWrites = true; });
    story.Fact("last box",
               [this] { return host.messages.empty() ? "" : host.messages.back().text; });
  }
  void Open(const clsScatterGraphPreset& preset) {
    window.emplace(host, Surroundings(), preset);
    window->Show();
  }
  std::string Preset() const {
    const clsScatterGraphPreset& preset = window->ColItem();
    return preset.strName + " " + std::to_string(preset.lngXAxisDataItem) + " " +
           std::to_string(preset.lngYAxisDataItem) + " " + std::to_string(preset.lngPointShape) +
           " " + std::to_string(preset.lngPointSize) + " " + std::to_string(preset.lngPointColour) +
           " " + std::to_string(preset.objFilters.Count()) + (preset.FileOpenDraw ? " drawn" : "");
  }

  std::optional<frmPresetScatterDetails> window;
};

TEST_F(ScatterDetailsTest, EditsAPreset) {
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
  EXPECT_TRUE(window->Accepted());
  EXPECT_EQ(Preset(), "All 3 63 8 10 33023 2 drawn");
}

TEST_F(ScatterDetailsTest, KeepsItsFilters) {
  EXPECT_STORY(story);
  window->lvwFilters.Select(0);
  EXPECT_STORY(story);
}

TEST_F(ScatterDetailsTest, AnotherFamilyHasOtherItems) {
  EXPECT_STORY(story);
  clsScatterGraphPreset other;
  other.lngXAxisDataItem = 47;
  other.lngYAxisDataItem = 3;
  Open(other);
  EXPECT_EQ(Boxes(), (std::vector<int>{43}));
  EXPECT_EQ(window->imgcboXAxis.Text(), "Sample No.");
  Open(clsScatterGraphPresets::BlankPreset());
  EXPECT_EQ(window->imgcboXAxis.Text() + window->cboPointSize.Text(), "RPM1");
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScatterDetailsTest, SavesAndLoads) {
  EXPECT_STORY(story);
  EXPECT_TRUE(files.files["/logs/Boost.sca"].ends_with(
      "Graph 1 Filter 2 Data Item=15\r\nGraph 1 Filter 2 From=1\r\n"
      "Graph 1 Filter 2 To=9\r\n"));
}

}  // namespace
}  // namespace tarnview
