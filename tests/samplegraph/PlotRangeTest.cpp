#include "WholeGraph.h"

namespace tarnview {
namespace {

using PlotRangeTest = WholeGraph;

TEST_F(PlotRangeTest, IsCorrectedBeforeADraw) {
  OpenLog(2000);
  const auto corrected = [this](const TableRow& row) {
    PlotRangeFrom.Text = row.Text(0);
    PlotRangeTo.Text = row.Text(1);
    range.CorrectForDraw();
    const std::string before = Range();
    range.EnsureMinimumPlotRange();
    return before + (Range() == before ? "" : " then " + Range());
  };
  ExpectTable(corrected, R"(
1, 2000 -> 1-2000 | 50, 20 -> 19-20 then 19-21 | 5000, 20 -> 19-20 then 19-21 | 0, 20 -> 1-20 | 2001, 2001 -> 1-2000
1900, 9999 -> 1900-2000 | 1990, 0 -> 1-2000 | -5, -1 -> 1-2000 | 1990, 1990 -> 1990-1990 then 1990-1992 | 1998, 1998 -> 1998-1998 then 1998-2000
1999, 1999 -> 1999-1999 then 1997-1999 | 2000, 2000 -> 2000-2000 then 1998-2000 | 12abc, 40 -> 12abc-40
)");
  OpenLog(2);
  EXPECT_EQ(corrected(TableRow("1, 2")), "1-2") << "no room";
}

TEST_F(PlotRangeTest, BoxesAndArrowsStayInTheLogAndForgetTheSample) {
  OpenLog(2000);
  EXPECT_TRUE(redraw.TakeRangeEdited());
  verbs["at"] = [this] { selection.Highlight(7); };
  ExpectFacts({"range", "sample", "edited", "edited", "whole"}, R"(
at; leave -> - sample 7 | at; type PlotRangeFrom 0; type PlotRangeTo 0; leave -> 1-2000 sample 0 edited whole | at; type PlotRangeFrom 1; type PlotRangeTo 1; leave -> 1-1 sample 0 edited
at; type PlotRangeFrom 2000; type PlotRangeTo 2000; leave -> 2000-2000 sample 0 edited | at; type PlotRangeFrom 2001; type PlotRangeTo 2001; leave -> 1-2000 sample 0 edited whole
at; step updPlotRangeTo down -> 1-1999 sample 7 edited | at; step updPlotRangeFrom down -> 1-1999 sample 7 | at; step updPlotRangeTo up -> 1-2000 sample 7 edited whole
at; step updPlotRangeTo up -> 1-2000 sample 7 whole | at; step updPlotRangeFrom up -> 2-2000 sample 7 edited
)");
  range.Clear();
  EXPECT_EQ(Range(), "-");
  EXPECT_FALSE(updPlotRangeTo.Enabled());
}

}  // namespace
}  // namespace tarnview
