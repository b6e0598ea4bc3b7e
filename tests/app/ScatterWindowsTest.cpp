// The main window and its scatter windows: the range on show, a load, the graphs drawn after it,
// the end of the program.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

constexpr const char* kPreset = R"([General]
Scatter Graph Auto Draw=Y
[New Preset Scatter Graphs]
Graph 1 Name=Boost
Graph 1 Point Shape=8
Graph 1 Point Size=6
Graph 1 X Axis=3
Graph 1 Y Axis=5
Graph 1 File Open Draw=Y
Graph 1 Log Family=1
Graph 2 Name=Gone
Graph 2 X Axis=3
Graph 2 Y Axis=61
Graph 2 Log Family=1
Graph 3 Name=Other family
Graph 3 File Open Draw=Y
Graph 3 Log Family=6
)";

class ScatterWindows : public ProgramFixture {
 protected:
  /// Of each scatter window its points and its filters: "40, 1 from 1 to 30".
  ScatterWindows() {
    story.Fact("clouds", [this] {
      std::string told;
      for (Form* form : host.open)
        if (auto* window = dynamic_cast<frmScatterGraph*>(form)) told += "[" + Told(*window) + "]";
      return told;
    });
    for (const char* part : {"chScatterGraph", "fraScatter", "prgProgInd", "lbl"})
      story.PassOver(part);
  }
  static std::string Told(frmScatterGraph& window) {
    const auto* cloud = window.chScatterGraph.Data().Cloud();
    std::string told = cloud ? std::to_string(cloud->x.size()) : "no";
    for (const clsScatterFilter& filter : window.objFilters())
      told += ", " + std::to_string(filter.lngDataItemSeq) + " from " + NumberText(filter.dblFrom) +
              " to " + NumberText(filter.dblTo);
    return told;
  }
};

TEST_F(ScatterWindows, TakeTheRangeOnShowAsAFilterWhereThatIsWanted) {
  Open(40, "[General]\nAuto Scatter Graph Sample Filter=Y\n");
  EXPECT_STORY(story);
  Open(40, "[General]\nAuto Scatter Graph Sample Filter=N\n");
  EXPECT_STORY(story);
}

TEST_F(ScatterWindows, AreDrawnAfterALoadWhereThatIsWanted) {
  files.files["/logs/long.txt"] = SmallLog(5100);
  Open(40, kPreset);
  EXPECT_STORY(story);
}

TEST_F(ScatterWindows, KeepTheirGraphThroughALoadAndEndWithTheProgram) {
  files.files["/logs/short.txt"] = SmallLog(5);
  Open(500);
  EXPECT_STORY(story);
  Main().Scatter().OpenScatterGraph().Width = 9000;
  Main().Unload();
  EXPECT_TRUE(host.open.empty());
  EXPECT_EQ(Set().windows.scatterGraph->lngWidth, 9000);
}

}  // namespace
}  // namespace tarnview
