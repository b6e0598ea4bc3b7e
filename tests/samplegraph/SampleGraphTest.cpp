#include "WholeGraph.h"
#include "support/Story.h"

namespace tarnview {
namespace {

using SampleGraphTest = WholeGraph;

TEST_F(SampleGraphTest, DrawsWhatIsTickedAsItsItemLooks) {
  OpenLog(50);
  catalogue.gcolFixedDataItems.Item(20).lngLineStyle = 2;
  log.glngDataLog.Set(kKnock, 2, 30);
  std::string progressed;
  progress.Watch([&](What) { progressed += " " + std::to_string(progress.Value()); });
  Draw("2", "4");
  EXPECT_EQ(progressed, " 0 0 1 2 2") << "samples of " << progress.Max();
  Story story{host};
  EXPECT_STORY(story);
  Do("point chSampleGraph 1 1");
  graph.Clear();
  EXPECT_FALSE(chSampleGraph.Visible());
  EXPECT_TRUE(fraPicture.Visible());
  EXPECT_EQ(selection.lngSelectedPoint(), 0);
}

TEST_F(SampleGraphTest, TheFixedMaximumStandsOnAStepWithinItsLimits) {
  OpenLog(50);
  facts["maximum"] = [this] {
    return txtYMax.Text() + TextIf(txtYMax.Enabled(), " open") +
           TextIf(updYMax.Enabled(), " arrows");
  };
  ExpectFacts({"maximum"}, R"(
click chkFixY -> 250 open arrows | type txtYMax 90; step updYMax up -> 100 open arrows | type txtYMax 15; step updYMax down -> 10 open arrows
type txtYMax 2147483647; step updYMax up -> 1000 open arrows | type txtYMax -2147483648; step updYMax down -> 10 open arrows | type txtYMax 33; click chkQuickGraph -> 33 open arrows
draw -> 35 open arrows | type txtYMax 40; click chkFixY -> 40 | click chkFixY -> 40 open arrows
)");
}

TEST_F(SampleGraphTest, BuildsWhatHasChangedAlone) {
  OpenLog(50);
  int built = 0;
  chSampleGraph.Watch([&](What what) { built += what == What::Content; });
  facts["curves"] = [&] {
    const auto& curves = chSampleGraph.Data().Series();
    return std::to_string(std::exchange(built, 0)) + " built, " + std::to_string(curves.size()) +
           " curves, " + std::to_string(curves[0].x.size()) + " points, up to " +
           NumberText(chSampleGraph.Data().y.max);
  };
  ExpectFacts({"curves", "boxes"}, R"(
draw -> 1 built, 2 curves, 50 points, up to 11 | draw -> 0 built, 2 curves, 50 points, up to 11 | click chkFixY; draw -> 1 built, 2 curves, 50 points, up to 240
type PlotRangeTo 40; leave; draw -> 1 built, 2 curves, 40 points, up to 240 | type txtYMax 100; draw -> 1 built, 2 curves, 40 points, up to 100
click chkQuickGraph; draw -> 1 built, 2 curves, 40 points, up to 100 | tick lvwSampleDetails RPM off; draw -> 1 built, 1 curves, 40 points, up to 100
# With nothing ticked it says so and keeps the graph; what cannot be plotted is not ticked.
tick lvwSampleDetails Knock off; draw -> 0 built, 1 curves, 40 points, up to 100 [10] | tick lvwSampleDetails Sample on; draw -> 0 built, 1 curves, 40 points, up to 100 [10]
tick lvwSampleDetails MAP on; draw -> 1 built, 1 curves, 40 points, up to 100
)");
}

TEST_F(SampleGraphTest, HiddenRowsKeepTheirChecks) {
  catalogue.gcolFixedDataItems.Item(36).blnDisplay = false;
  OpenLog(50);
  verbs["knock"] = [this] { details.SelectItem(20); };
  verbs["map"] = [this] { details.SelectItem(5); };
  facts["rows"] = [this] {
    std::string checked;
    for (const int item : details.CheckedItems()) checked += " " + std::to_string(item);
    return std::to_string(lvwSampleDetails.Count()) + " rows, ticked" + checked + ", at " +
           std::to_string(lvwSampleDetails.SelectedRow());
  };
  EXPECT_EQ(lvwSampleDetails.RowOfTag("36"), 0);
  details.SetCheckedItems({0, 1, 3, 20, 9999});
  EXPECT_EQ(Ticked(), " 20 3") << "those that can be plotted";
  ExpectFacts({"rows"}, R"(
click chkShowCheckedOnly -> 2 rows, ticked 3 20, at 1 | knock -> 2 rows, ticked 3 20, at 1 | map -> 2 rows, ticked 3 20, at 1 | tick lvwSampleDetails RPM off -> 2 rows, ticked 20, at 1
click chkShowCheckedOnly -> 52 rows, ticked 20, at 1 | map -> 52 rows, ticked 20, at 35
)");
  details.SetUpSampleGraphSampleListView(9999, catalogue.gcolFixedDataItems);
  EXPECT_EQ(lvwSampleDetails.Count(), 52) << "a file of no family changes nothing";
}

}  // namespace
}  // namespace tarnview
