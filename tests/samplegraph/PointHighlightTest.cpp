#include "WholeGraph.h"

namespace tarnview {
namespace {

/// Curves of Knock (rising), MAP and RPM (falling) over samples 11 to 20 of 30.
class PointHighlightTest : public WholeGraph {
 protected:
  PointHighlightTest() {
    OpenLog(30);
    details.SetCheckedItems({3, 5, 20});
    for (int row = 0; row < 30; ++row) {
      log.glngDataLog.Set(kRPM, row, 100 * (110 - 10 * (row - 9)));
      log.glngDataLog.Set(kMAP, row, 450);
      log.glngDataLog.Set(kKnock, row, 10 * std::max(row - 10, 0));
    }
    Draw("11", "20");
    facts["point"] = [this] { return " point " + std::to_string(selection.lngSelectedPoint()); };
    facts["row"] = [this] {
      return " of " + lvwSampleDetails.At(lvwSampleDetails.SelectedRow()).texts[0];
    };
    facts["item"] = [this] { return " item " + std::to_string(selection.intSelectedItem()); };
    facts["curve"] = [this] { return " curve " + std::to_string(chSampleGraph.SelectedSeries()); };
    facts["list"] = [this] { return ", list at " + Shown("1"); };
    facts["ends"] = [this] {
      return TextIf(highlight.CanGoLeft(), " <") + TextIf(highlight.CanGoRight(), " >");
    };
  }
};

TEST_F(PointHighlightTest, WalksFromPointToPointAndFromCurveToCurve) {
  ExpectFacts({"range", "point", "row", "item", "curve", "sample", "list", "ends"}, R"(
11, 20, point chSampleGraph 3 4 -> 11-20 point 4 of MAP item 5 curve 3 sample 14, list at 14 < >
11, 20, point chSampleGraph 1 5; point_left -> 11-20 point 4 of Knock item 20 curve 1 sample 14, list at 14 < >
11, 20, point chSampleGraph 1 5; point_right -> 11-20 point 6 of Knock item 20 curve 1 sample 16, list at 16 < >
# At an end the graph scrolls by a step.
11, 20, point chSampleGraph 1 1; point_left -> 10-18 point 2 of Knock item 20 curve 1 sample 11, list at 11 < >
11, 20, point chSampleGraph 1 10; point_right -> 12-20 point 9 of Knock item 20 curve 1 sample 20, list at 20 < >
1, 10, point chSampleGraph 1 1; point_left -> 1-10 point 1 of Knock item 20 curve 1 sample 1, list at 1 >
1, 10, point chSampleGraph 1 2 -> 1-10 point 2 of Knock item 20 curve 1 sample 2, list at 2 < >
21, 30, point chSampleGraph 1 9 -> 21-30 point 9 of Knock item 20 curve 1 sample 29, list at 29 < >
21, 30, point chSampleGraph 1 10; point_right -> 21-30 point 10 of Knock item 20 curve 1 sample 30, list at 30 <
# Curves by their height there: Knock, MAP and RPM are 1, 3 and 5.
11, 20, point chSampleGraph 1 1; lower -> 11-20 point 1 of Knock item 20 curve 1 sample 11, list at 11 < >
11, 20, point chSampleGraph 3 1; lower -> 11-20 point 1 of Knock item 20 curve 1 sample 11, list at 11 < >
11, 20, point chSampleGraph 5 1; lower -> 11-20 point 1 of MAP item 5 curve 3 sample 11, list at 11 < >
11, 20, point chSampleGraph 1 1; higher -> 11-20 point 1 of MAP item 5 curve 3 sample 11, list at 11 < >
11, 20, point chSampleGraph 1 10; higher -> 11-20 point 10 of Knock item 20 curve 1 sample 20, list at 20 < >
11, 20, point chSampleGraph 5 10; higher -> 11-20 point 10 of MAP item 5 curve 3 sample 20, list at 20 < >
# A row of the list moves to its curve and nothing else.
11, 20, point chSampleGraph 5 4; row lvwSampleDetails Knock -> 11-20 point 4 of Knock item 20 curve 1 sample 14, list at 14 < >
11, 20, point chSampleGraph 5 4; row lvwSampleDetails Sample -> 11-20 point 4 of Sample item 3 curve 5 sample 14, list at 14 < >
11, 20, point chSampleGraph 5 4; row lvwSampleDetails A/F -> 11-20 point 4 of A/F item 3 curve 5 sample 14, list at 14 < >
11, 20, no_point; row lvwSampleDetails MAP -> 11-20 point 0 of MAP item 3 curve 5 sample 14, list at 14 < >
)");
  EXPECT_EQ(foot.Panel(1), "Sample: 14, Secs: 1.147");
}

TEST_F(PointHighlightTest, ThinnedRowsAndLostHeadingsStayInTheLog) {
  drawn.intThinStep = 4;
  Do("point chSampleGraph 1 9");
  EXPECT_EQ(selection.lngHighlightSample(), 30) << "never beyond the log";
  drawn.varChartData.headings = {"gone"};
  Do("point chSampleGraph 3 1");
  EXPECT_EQ(selection.intSelectedItem(), 3) << "RPM, where the heading is no item's";
}

}  // namespace
}  // namespace tarnview
