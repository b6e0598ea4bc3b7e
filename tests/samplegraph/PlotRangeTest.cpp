#include "GraphStandIn.h"

namespace tarnview {
namespace {

using PlotRangeTest = GraphStandIn;

TEST_F(PlotRangeTest, IsCorrectedBeforeADraw) {
  Open(2000);
  const struct {
    const char *from, *to, *corrected, *grown;
  } kRows[] = {
      {"1", "2000", "1-2000", "1-2000"},          {"50", "20", "19-20", "19-21"},
      {"5000", "20", "19-20", "19-21"},           {"0", "20", "1-20", "1-20"},
      {"2001", "2001", "1-2000", "1-2000"},       {"1900", "9999", "1900-2000", "1900-2000"},
      {"1990", "0", "1-2000", "1-2000"},          {"-5", "-1", "1-2000", "1-2000"},
      {"1990", "1990", "1990-1990", "1990-1992"}, {"1998", "1998", "1998-1998", "1998-2000"},
      {"1999", "1999", "1999-1999", "1997-1999"}, {"2000", "2000", "2000-2000", "1998-2000"},
      {"12abc", "40", "12abc-40", "12abc-40"},
  };
  for (const auto& row : kRows) {
    PlotRangeFrom.Text = row.from;
    PlotRangeTo.Text = row.to;
    range.CorrectForDraw();
    EXPECT_EQ(Range(), row.corrected) << row.from << " " << row.to;
    range.EnsureMinimumPlotRange();
    EXPECT_EQ(Range(), row.grown) << row.from << " " << row.to;
  }
  Open(2);
  Type(1, 2);
  range.EnsureMinimumPlotRange();
  EXPECT_EQ(Range(), "1-2") << "no room";
}

TEST_F(PlotRangeTest, ABoxThatIsLeftIsBroughtIntoTheLogAndForgetsTheSample) {
  Open(2000);
  EXPECT_TRUE(redraw.TakeRangeEdited());
  for (const auto& [text, from, to] : {std::tuple{"0", "1", "2000"},
                                       {"1", "1", "1"},
                                       {"2000", "2000", "2000"},
                                       {"2001", "1", "2000"}}) {
    selection.Highlight(7);
    PlotRangeFrom.Do({"type", {text}});
    PlotRangeTo.Do({"type", {text}});
    EXPECT_EQ(selection.lngHighlightSample(), 0) << text;
    window.SetFocus(nullptr);
    EXPECT_EQ(Range(), std::string(from) + "-" + to) << text;
    EXPECT_TRUE(redraw.TakeRangeEdited());
    EXPECT_FALSE(redraw.TakeRangeEdited());
  }
}

TEST_F(PlotRangeTest, ArrowsStepWithinTheLog) {
  Open(2000);
  Type(1, 1999);
  updPlotRangeFrom.Do({"step", {"down"}});
  updPlotRangeTo.Do({"step", {"up"}});
  EXPECT_EQ(Range(), "1-2000");
  EXPECT_TRUE(range.IsWholeLog());
  updPlotRangeTo.Do({"step", {"up"}});
  updPlotRangeFrom.Do({"step", {"up"}});
  EXPECT_EQ(Range(), "2-2000");
  range.Clear();
  EXPECT_EQ(Range(), "-");
  EXPECT_FALSE(updPlotRangeTo.Enabled());
}

}  // namespace
}  // namespace tarnview
