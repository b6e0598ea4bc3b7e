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
  EXPECT_STORY(story, R"(
click mnuModulesScatterGraph -> +frmScatterGraph, clouds=[no]
type frmDataLogViewer/PlotRangeTo 30 -> frmDataLogViewer/PlotRangeTo=30
click frmDataLogViewer/mnuModulesScatterGraph -> +frmScatterGraph.2, clouds=[no][no, 1 from 1 to 30]
)");
  Open(40, "[General]\nAuto Scatter Graph Sample Filter=N\n");
  EXPECT_STORY(story, R"(
type PlotRangeTo 30; click mnuModulesScatterGraph -> +frmScatterGraph, clouds=[no], frmDataLogViewer/PlotRangeTo=30
)");
}

TEST_F(ScatterWindows, AreDrawnAfterALoadWhereThatIsWanted) {
  files.files["/logs/long.txt"] = SmallLog(5100);
  Open(40, kPreset);
  EXPECT_STORY(story, R"(
show caption cboPointShape -> caption=Tarnview Scatter Graph - run.txt, cboPointShape list=[3D Ball|Circle|Dash|Diamond|Down Tri|Plus|Square|Star|Up Tri|X], cboPointShape=Up Tri
click frmDataLogViewer/mnuFileDrawScatter
load /logs/run.txt -> [16 ok], frmDataLogViewer/staDataLogViewer[0]=Loading complete
click mnuFileClose -> -frmScatterGraph, clouds=
# Of too many points nothing is told but what the load has to say; the user's own row is.
click mnuFileDrawScatter
load /logs/long.txt -> [16 ok], +frmScatterGraph, clouds=[no], frmDataLogViewer/caption=Tarnview - long.txt (FM Link Data Log), frmDataLogViewer/PlotRangeTo=5100, frmDataLogViewer/staDataLogViewer[0]=Drawing Scatter Graphs..., frmDataLogViewer/staDataLogViewer[2]=Sample Load Range 1 - 5100
row lvwPresets Gone -> [43 ok], cboYAxis=Sample No., cboPointShape=3D Ball, cboPointSize=1
)");
}

TEST_F(ScatterWindows, KeepTheirGraphThroughALoadAndEndWithTheProgram) {
  files.files["/logs/short.txt"] = SmallLog(5);
  Open(500);
  EXPECT_STORY(story, R"(
click mnuModulesScatterGraph -> +frmScatterGraph, clouds=[no]
click cmdDrawGraph -> clouds=[500], staScatterGraph[0]=Graph draw complete, staScatterGraph[2]=500 points
point chScatterGraph 1 100; click cmdShowPoint -> graph=50-150 at 100, PlotRangeFrom=50, PlotRangeTo=150, txtYMax=240, staDataLogViewer[0]=Sample: 100, Secs: 8.192
click mnuModulesScatterGraph -> +frmScatterGraph.2, clouds=[500][no, 1 from 50 to 150]
point frmScatterGraph/chScatterGraph 1 400
load /logs/short.txt; show "cmdDrawGraph enabled" -> [16 ok], graph=none, frmDataLogViewer/caption=Tarnview - short.txt (FM Link Data Log), frmDataLogViewer/PlotRangeFrom=1, frmDataLogViewer/PlotRangeTo=5, frmDataLogViewer/staDataLogViewer[0]=Loading complete, frmDataLogViewer/staDataLogViewer[2]=Sample Load Range 1 - 5
load /logs/none.txt; show caption "cmdDrawGraph enabled" -> caption=Tarnview Scatter Graph - run.txt, cmdDrawGraph off, [15 ok], [12 ok], frmDataLogViewer/caption=Tarnview, frmDataLogViewer/PlotRangeFrom=, frmDataLogViewer/PlotRangeTo=, frmDataLogViewer/staDataLogViewer[0]=Loading failed, frmDataLogViewer/staDataLogViewer[2]=
click frmScatterGraph/cmdShowPoint
load /logs/short.txt; click frmScatterGraph/cmdDrawGraph -> [16 ok], clouds=[5][no, 1 from 50 to 150], frmDataLogViewer/caption=Tarnview - short.txt (FM Link Data Log), frmDataLogViewer/PlotRangeFrom=1, frmDataLogViewer/PlotRangeTo=5, frmDataLogViewer/staDataLogViewer[0]=Loading complete, frmDataLogViewer/staDataLogViewer[2]=Sample Load Range 1 - 5, frmScatterGraph/caption=Tarnview Scatter Graph - short.txt, frmScatterGraph/staScatterGraph[2]=5 points
click frmScatterGraph.2/mnuFileClose -> -frmScatterGraph.2, clouds=[5]
)");
  Main().Scatter().OpenScatterGraph().Width = 9000;
  Main().Unload();
  EXPECT_TRUE(host.open.empty());
  EXPECT_EQ(Set().windows.scatterGraph->lngWidth, 9000);
}

}  // namespace
}  // namespace tarnview
