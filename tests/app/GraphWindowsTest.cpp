// What the main window offers around the graph: presets, a sample to go to, the export, zone
// influence.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class GraphWindows : public ProgramFixture {
 protected:
  GraphWindows() {
    Fact("presets", [this] {
      std::string told;
      for (const auto& preset : program->Global().gcolSampleGraphPresets) {
        told += (told.empty() ? "" : "; ") + preset.strName + " of " +
                std::to_string(preset.lngLogFamily) + ":";
        for (const int item : preset.colDataItems) told += " " + std::to_string(item);
        told += " to " + std::to_string(preset.lngGraphMax);
      }
      return told;
    });
    Fact("scatters", [this] {
      const auto& presets = program->Global().gcolScatterGraphPresets;
      if (presets.Count() == 0) return std::string();
      const auto& last = presets.Item(presets.Count());
      return last.strName + ": " + std::to_string(last.lngXAxisDataItem) + " " +
             std::to_string(last.lngYAxisDataItem);
    });
  }
};

constexpr const char* kPresets = R"([General]
Checked Data Items=3,5
[New Preset Sample Graphs]
Graph 1 Name=Knock
Graph 1 Data Items=20,3
Graph 1 Fix Graph Max=Y
Graph 1 Graph Max=120
Graph 1 Log Family=1
Graph 2 Name=Other
Graph 2 Data Items=1
Graph 2 Log Family=6
Graph 3 Name=None
Graph 3 Data Items=
Graph 3 Log Family=1
)";

TEST_F(GraphWindows, PresetsAreUpdatedAddedAndEdited) {
  Open(50, kPresets);
  EXPECT_STORY(story);
}

TEST_F(GraphWindows, GoesToASampleInAGraphOfTheSameWidth) {
  Open(2000);
  story.Verb("draw", [this](const auto& words) {
    Main().Selected().Forget();
    Draw(words[0], words[1]);
    Main().PlotRangeFrom.SetFocus();
  });
  EXPECT_STORY(story);
}

TEST_F(GraphWindows, AnExportKeepsItsPathUntilTheNextLog) {
  Open(40);
  EXPECT_STORY(story);
  EXPECT_NE(files.files["/logs/run.csv"].find("File Type: FM Link Data Logs\r\n"),
            std::string::npos);
}

TEST_F(GraphWindows, ZoneInfluenceFollowsTheSelectedSampleOfALinkLog) {
  Open(40, "", [](SmallSample& one) { one.rpm += one.sample; });
  EXPECT_STORY(story);
  Main().LoadDataFile("/logs/run.txt", 0);
  Do("click cmdDrawGraph");
  Main().picZoneInfl.SetSize(1120, 460);
  const auto& shapes = Main().picZoneInfl.Shapes();
  ASSERT_EQ(shapes.circles.size(), 2u);
  // 1020 RPM between the middles of the zones, at 750 and 1250; 40 kPa half way between the rows at
  // 20 and 60.
  EXPECT_EQ(shapes.circles[0], (Drawing::Circle{600, 230, 30, true}));
  EXPECT_EQ(shapes.lines[0], (Drawing::Line{0, 230, 1120, 230}));
}

}  // namespace
}  // namespace tarnview
