// The main window from Draw on: range checks, what is drawn, moving and selecting.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using DrawGraph = ProgramFixture;

TEST_F(DrawGraph, WithoutALogNothingIsDrawn) {
  Open(50);
  Main().LoadDataFile("/logs/none.txt", 1);
  Main().lvwSampleDetails.SetChecked(Main().lvwSampleDetails.RowOfTag("3"), true);
  Main().DrawGraph();
  for (const char* keys : {"Ctrl+I", "Ctrl+End", "Alt+Left", "Shift+Left"})
    Main().Press(*ParseKeys(keys));
  Main().hsbGraphScroll.Value = 20;
  EXPECT_TRUE(Main().chSampleGraph.Data().Series().empty());
  EXPECT_TRUE(Main().fraPicture.Visible());
  EXPECT_FALSE(Main().mnuFilePrint.Enabled());
}

TEST_F(DrawGraph, EnterLeavesTheBoxBeforeItDraws) {
  Open(2000);
  Main().cmdDrawGraph.Press();
  Main().PlotRangeFrom.SetFocus();
  Main().PlotRangeFrom.Text = "1001";
  Main().Press({"Enter"});
  EXPECT_EQ(Shown("1"), "1499") << "the middle of 1001 to 2000, every second one drawn";
  // A key that draws from within a box keeps what is selected.
  Main().PlotRangeTo.SetFocus();
  Main().Press({"I", false, true});
  EXPECT_EQ(Main().Selected().lngHighlightSample(), 1499);
  EXPECT_EQ(Shown("1"), "1499");
}

TEST_F(DrawGraph, TheFixedMaximumStepsWithinItsLimits) {
  Open(50);
  Main().chkFixY.Value = true;
  const char* kRows[][3] = {{"240", "up", "250"},
                            {"240", "down", "230"},
                            {"995", "up", "1000"},
                            {"2147483647", "up", "1000"},
                            {"-2147483648", "down", "10"}};
  for (const auto& [text, way, wanted] : kRows) {
    Main().txtYMax.Text = std::string(text);
    Main().updYMax.Do({"step", {way}});
    EXPECT_EQ(Main().txtYMax.Text(), wanted) << text << " " << way;
  }
}

TEST_F(DrawGraph, ASelectedPointShowsItsSample) {
  Open(2000, "", [](SmallSample& one) { one.rpm = 1000 + one.sample; });
  Main().cmdDrawGraph.Press();  // step 4
  Main().chSampleGraph.SelectPoint(3, 10);
  EXPECT_EQ(Said() + Shown("3") + Shown("1"), "Sample: 37, Secs: 3.031103737");
  Main().Press({"Right"});
  EXPECT_EQ(Main().Selected().lngHighlightSample(), 41);
  Main().Press({"Up", true});
  EXPECT_EQ(Main().Selected().lngHighlightSample(), 41);

  // The sample stays selected when the range moves about it.
  Draw("30", "60");
  EXPECT_EQ(Main().Selected().lngHighlightSample(), 41);
  EXPECT_EQ(Main().chSampleGraph.SelectedPoint(), 12);
}

TEST_F(DrawGraph, TheWalkAlongThePointsHasOneRule) {
  Open(50);
  Main().cmdDrawGraph.Press();
  for (const auto& [point, left, right] :
       {std::tuple{1, false, true}, {2, true, true}, {50, true, false}}) {
    Main().chSampleGraph.SelectPoint(1, point);
    Main().chSampleGraph.RightClick();
    EXPECT_EQ(Main().cmdDataPointLeft.Enabled(), left) << point;
    EXPECT_EQ(Main().cmdDataPointRight.Enabled(), right) << point;
  }
}

}  // namespace
}  // namespace tarnview
