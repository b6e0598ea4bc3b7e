// The main window and its scatter windows: the range on show, a load, the graphs drawn after it,
// the end of the program.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

constexpr const char* kPreset = R"(
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
  std::vector<frmScatterGraph*> Windows() {
    std::vector<frmScatterGraph*> windows;
    for (Form* form : host.open)
      if (auto* window = dynamic_cast<frmScatterGraph*>(form)) windows.push_back(window);
    return windows;
  }
};

TEST_F(ScatterWindows, TakeTheRangeOnShowAsAFilter) {
  for (const bool wanted : {true, false}) {
    Open(40,
         std::string("[General]\nAuto Scatter Graph Sample Filter=") + (wanted ? "Y\n" : "N\n"));
    EXPECT_EQ(Main().Scatter().OpenScatterGraph().objFilters().Count(), 0) << "the whole log";
    Main().PlotRangeTo.Do({"type", {"30"}});
    const clsScatterFilters& filters = Main().Scatter().OpenScatterGraph().objFilters();
    ASSERT_EQ(filters.Count(), wanted ? 1 : 0);
    if (!wanted) continue;
    EXPECT_EQ(filters.Item(1).lngDataItemSeq, 1);
    EXPECT_EQ(filters.Item(1).dblFrom, 1);
    EXPECT_EQ(filters.Item(1).dblTo, 30);
  }
}

TEST_F(ScatterWindows, AreDrawnAfterALoadWhereThatIsWanted) {
  Open(40, std::string("[General]\nScatter Graph Auto Draw=Y\n") + kPreset);
  ASSERT_EQ(Windows().size(), 1u) << "the other preset is of another family";
  EXPECT_EQ(Windows()[0]->chScatterGraph.Data().Cloud()->x.size(), 40u);
  EXPECT_EQ(Windows()[0]->cboPointShape.Text(), "Up Tri");
  Do("click mnuFileDrawScatter");
  EXPECT_FALSE(Set().gblnScatterGraphAutoDraw);
  Main().LoadDataFile("/logs/run.txt", 0);
  EXPECT_EQ(Windows().size(), 1u);
}

TEST_F(ScatterWindows, AnAutomaticGraphIsSilentAboutItsFaults) {
  files.files["/logs/run.txt"] = SmallLog(5100);
  Start("", std::string("[General]\nScatter Graph Auto Draw=Y\n") + kPreset);
  host.messages.clear();
  Main().LoadDataFile("/logs/run.txt", 0);
  EXPECT_EQ(Boxes(), Ids{16}) << "the load's own alone: no zones";
  ASSERT_EQ(Windows().size(), 1u);
  EXPECT_FALSE(Windows()[0]->chScatterGraph.Data().Cloud());
  // What the user does in the window is told of as in any other.
  Windows()[0]->lvwPresets.Do({"row", {"Gone"}});
  EXPECT_EQ(Boxes(), Ids{43});
}

TEST_F(ScatterWindows, KeepTheirGraphThroughALoad) {
  Open(40);
  frmScatterGraph& window = Main().Scatter().OpenScatterGraph();
  window.cmdDrawGraph.Press();
  window.chScatterGraph.SelectPoint(1, 40);
  files.files["/logs/short.txt"] = SmallLog(5);
  Main().LoadDataFile("/logs/short.txt", 0);
  EXPECT_EQ(window.chScatterGraph.Data().Cloud()->x.size(), 40u);
  EXPECT_EQ(window.Caption(), "Tarnview Scatter Graph - run.txt");
  Main().LoadDataFile("/logs/none.txt", 0);
  EXPECT_FALSE(window.cmdDrawGraph.Enabled());
  window.cmdShowPoint.Press();
  Main().LoadDataFile("/logs/short.txt", 0);
  window.cmdDrawGraph.Press();
  EXPECT_EQ(window.chScatterGraph.Data().Cloud()->x.size(), 5u);
  EXPECT_EQ(window.Caption(), "Tarnview Scatter Graph - short.txt");
}

TEST_F(ScatterWindows, APointLeadsBackToTheSampleGraph) {
  Open(500);
  frmScatterGraph& window = Main().Scatter().OpenScatterGraph();
  window.cmdDrawGraph.Press();
  window.chScatterGraph.Do({"point", {"1", "100"}});
  window.cmdShowPoint.Press();
  EXPECT_EQ(host.Front(), &Main());
  EXPECT_EQ(Range(), "50-150");
  EXPECT_EQ(Main().Selected().lngHighlightSample(), 100);
  EXPECT_TRUE(Main().chSampleGraph.Visible());
}

TEST_F(ScatterWindows, CloseWithTheMainWindow) {
  Open(40);
  frmScatterGraph& window = Main().Scatter().OpenScatterGraph();
  Main().Scatter().OpenScatterGraph().mnuFileClose.Do({"click", {}});
  EXPECT_EQ(Windows(), std::vector<frmScatterGraph*>{&window});
  window.Width = 9000;
  window.Height = 6000;
  Main().Unload();
  EXPECT_TRUE(Windows().empty());
  EXPECT_EQ(Set().windows.scatterGraph->lngWidth, 9000);
}

}  // namespace
}  // namespace tarnview
