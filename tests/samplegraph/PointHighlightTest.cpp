#include "GraphWithList.h"
#include "samplegraph/PointHighlight.h"

namespace tarnview {
namespace {

/// Curves of RPM (falling), MAP and Knock (rising) over ten samples.
class PointHighlightTest : public GraphWithList, protected PointHighlight::MainWindow {
 protected:
  PointHighlightTest() {
    details.SetUpSampleGraphSampleListView(kFMLinkLog, catalogue.gcolFixedDataItems);
    Open(30);
    Type(11, 20);
    Draw();
    drawn.intPlottedItems = {3, 5, 20};
    drawn.varChartData.headings = {"RPM", "MAP", "Knock"};
    drawn.varChartData.y.resize(3);
    for (int row = 0; row < 10; ++row) {
      drawn.varChartData.x.push_back(row);
      drawn.varChartData.y[0].push_back(90 - 10 * row);
      drawn.varChartData.y[1].push_back(45);
      drawn.varChartData.y[2].push_back(10 * row);
    }
    drawn.lngChartRow = 11;
  }
  void ScrollOneStep(int direction) override { notes += direction < 0 ? " left" : " right"; }
  void SampleShown(std::int32_t index) override { notes += " " + std::to_string(index); }
  std::string Notes() { return std::exchange(notes, ""); }
  std::string RowSelected() { return lvwSampleDetails.At(lvwSampleDetails.SelectedRow()).texts[0]; }

  PointHighlight highlight{{chSampleGraph}, drawn, selection, range, log, details, status, *this};
  std::string notes;
};

TEST_F(PointHighlightTest, APointTellsItsSampleAndItsCurve) {
  chSampleGraph.SelectPoint(3, 4);
  EXPECT_EQ(Notes(), " 13");
  EXPECT_EQ(selection.lngHighlightSample(), 14);
  EXPECT_EQ(selection.intSelectedItem(), 5);
  EXPECT_EQ(RowSelected(), "MAP");
  EXPECT_EQ(lvwSampleDetails.At(lvwSampleDetails.RowOfTag("1")).texts[1], "14");
  EXPECT_TRUE(bar.Panel(1).starts_with("Sample: 14, Secs: ")) << bar.Panel(1);
  drawn.intThinStep = 4;
  chSampleGraph.SelectPoint(1, 9);
  EXPECT_EQ(selection.lngHighlightSample(), 30) << "never beyond the log";
  drawn.varChartData.headings = {"gone"};
  chSampleGraph.SelectPoint(1, 1);
  EXPECT_EQ(selection.intSelectedItem(), 3) << "RPM, where the heading is no item's";
}

TEST_F(PointHighlightTest, WalksFromPointToPointAndScrollsAtTheEnds) {
  const struct {
    int point;
    void (PointHighlight::*step)();
    int then;
    const char* notes;
  } kRows[] = {{5, &PointHighlight::cmdDataPointLeft_Click, 4, " 13"},
               {5, &PointHighlight::cmdDataPointRight_Click, 6, " 15"},
               {1, &PointHighlight::cmdDataPointLeft_Click, 1, " left"},
               {10, &PointHighlight::cmdDataPointRight_Click, 10, " right"}};
  for (const auto& row : kRows) {
    chSampleGraph.SelectPoint(1, row.point);
    Notes();
    (highlight.*row.step)();
    EXPECT_EQ(selection.lngSelectedPoint(), row.then) << row.point;
    EXPECT_EQ(Notes(), row.notes) << row.point;
  }
}

TEST_F(PointHighlightTest, MayWalkAsFarAsTheLogGoes) {
  const struct {
    int from, point;
    bool left, right;
  } kRows[] = {{1, 1, false, true},
               {1, 2, true, true},
               {2, 1, true, true},
               {21, 9, true, true},
               {21, 10, true, false}};
  for (const auto& row : kRows) {
    Type(row.from, row.from + 9);
    selection.Select(1, row.point, 3);
    EXPECT_EQ(highlight.CanGoLeft(), row.left) << row.from << " " << row.point;
    EXPECT_EQ(highlight.CanGoRight(), row.right) << row.from << " " << row.point;
  }
}

TEST_F(PointHighlightTest, WalksFromCurveToCurveByTheirHeight) {
  const struct {
    int point, series, direction, then;
  } kRows[] = {{1, 1, -1, 3}, {1, 3, -1, 5}, {1, 5, -1, 5}, {1, 1, 1, 1},
               {10, 1, 1, 3}, {10, 3, 1, 5}, {10, 5, 1, 5}};
  for (const auto& row : kRows) {
    chSampleGraph.SelectPoint(row.series, row.point);
    highlight.MoveBetweenSeries(row.direction);
    EXPECT_EQ(selection.intSelectedSeries(), row.then)
        << row.point << " " << row.series << " " << row.direction;
    EXPECT_EQ(selection.lngSelectedPoint(), row.point);
  }
}

TEST_F(PointHighlightTest, ARowOfTheListMovesToItsCurveAndNothingElse) {
  chSampleGraph.SelectPoint(1, 4);
  selection.Highlight(99);
  Notes();
  lvwSampleDetails.Do({"row", {"Knock"}});
  EXPECT_EQ(chSampleGraph.SelectedSeries(), 5);
  EXPECT_EQ(selection.intSelectedItem(), 20);
  EXPECT_EQ(selection.lngSelectedPoint(), 4);
  EXPECT_EQ(selection.lngHighlightSample(), 99);
  EXPECT_EQ(Notes(), "");
  for (const char* other : {"Sample", "A/F"}) {
    lvwSampleDetails.Do({"row", {other}});
    EXPECT_EQ(chSampleGraph.SelectedSeries(), 5) << other;
  }
}

}  // namespace
}  // namespace tarnview
