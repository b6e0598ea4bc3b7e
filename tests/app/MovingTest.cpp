// Every key and every menu entry that moves through the log: what it does to the range and to the
// selected point.

#include "support/ProgramFixture.h"
#include "support/Table.h"

namespace tarnview {
namespace {

class Moving : public ProgramFixture {
 protected:
  Moving() {
    Open(2000, "", [](SmallSample& one) { one.rpm = 1000 + one.sample % 100; });
    Main().cmdDrawGraph.Press();
    story.Verb("key",
               [this](const auto& words) { taken_ = Main().Press(*ParseKeys(words.at(0))); });
    story.Verb("at", [this](const auto& words) { Main().Find(words.at(0))->SetFocus(); });
  }
  /// What a user does with samples 501 to 601 on show after the whole log and the middle one
  /// selected; behind " -> " the range, the graph with its point, and the zoom amount.
  void ExpectMoves(const std::string& moves) {
    ExpectTable(
        [this](const TableRow& row) {
          Reset();
          story.Play(row.All());
          return Range() + ", " + Graph() + " #" +
                 std::to_string(Main().Selected().lngSelectedPoint()) + " x" +
                 Main().cboZoomAmount.Text() + (taken_ ? "" : " left");
        },
        moves);
  }

 private:
  void Reset() {
    for (const auto& [from, to] : {std::pair{"1", "2000"}, {"501", "601"}}) {
      Main().Selected().Forget();
      Draw(from, to);
    }
    Main().cboZoomAmount.Text = "2";
    Main().lvwSampleDetails.SetFocus();
    taken_ = true;
  }
  bool taken_ = true;
};

TEST_F(Moving, MenuEntries) {
  ExpectMoves(R"(
click mnuViewScrollLeft -> 491-591, 491-591 at 551 #61 x2 | click mnuViewScrollRight -> 511-611, 511-611 at 551 #41 x2 | click mnuViewPageLeft -> 401-501, 401-501 at 451 #51 x2
click mnuViewPageRight -> 601-701, 601-701 at 651 #51 x2 | click mnuViewStart -> 1-101, 1-101 at 51 #51 x2 | click mnuViewFinish -> 1900-2000, 1900-2000 at 1950 #51 x2
click mnuViewZoomIn -> 527-577, 527-577 at 551 #25 x2 | click mnuViewZoomInAmount(10) -> 547-557, 547-557 at 551 #5 x10 | click mnuViewZoomOut -> 452-652, 452-652 at 551 #100 x2
click mnuViewZoomOutAmount(3) -> 402-702, 402-702 at 551 #150 x3 | click mnuViewZoomFull -> 1-2000, 1-2000 at 553 #139 x2 | click mnuViewPrevious -> 1-2000, 1-2000 at 997 #250 x2
popup chSampleGraph mnuRightClickDrawGraph -> 501-601, 501-601 at 551 #51 x2 | popup chSampleGraph mnuRightClickZoomIn -> 527-577, 527-577 at 551 #25 x2 | popup chSampleGraph mnuRightClickZoomInAmount(5) -> 542-562, 542-562 at 551 #10 x5
popup chSampleGraph mnuRightClickZoomOut -> 452-652, 452-652 at 551 #100 x2 | popup chSampleGraph mnuRightClickZoomOutAmount(100) -> 1-2000, 1-2000 at 553 #139 x100 | popup chSampleGraph mnuRightClickZoomOutFull -> 1-2000, 1-2000 at 553 #139 x2
popup chSampleGraph mnuRightClickPrevGraph -> 1-2000, 1-2000 at 997 #250 x2 | popup chSampleGraph mnuRightClickPlotFrom -> 551-601, 501-601 at 551 #51 x2 | popup chSampleGraph mnuRightClickPlotTo -> 501-551, 501-601 at 551 #51 x2
popup chSampleGraph mnuRightClickPlotFromAnd -> 551-601, 551-601 at 576 #26 x2 | popup chSampleGraph mnuRightClickPlotToAnd -> 501-551, 501-551 at 526 #26 x2
)");
}

/// Where they stand in another field than the graph, some keys are left to it.
TEST_F(Moving, Keys) {
  ExpectMoves(R"(
at chSampleGraph; key Shift+Left -> 501-601, 501-601 at 550 #50 x2 | at chSampleGraph; key Shift+Right -> 501-601, 501-601 at 552 #52 x2 | at lvwSampleDetails; key Shift+Left -> 501-601, 501-601 at 550 #50 x2
at lvwSampleDetails; key Shift+Right -> 501-601, 501-601 at 552 #52 x2 | at PlotRangeFrom; key Shift+Left -> 501-601, 501-601 at 551 #51 x2 left | at chSampleGraph; key Left -> 501-601, 501-601 at 550 #50 x2
at chSampleGraph; key Right -> 501-601, 501-601 at 552 #52 x2 | at lvwSampleDetails; key Left -> 501-601, 501-601 at 551 #51 x2 left | at cboZoomAmount; key Ctrl+Left -> 401-501, 401-501 at 451 #51 x2
at PlotRangeTo; key Ctrl+Right -> 601-701, 601-701 at 651 #51 x2 | at lvwSampleDetails; key Alt+Left -> 491-591, 491-591 at 551 #61 x2 | at cmdDrawGraph; key Alt+Right -> 511-611, 511-611 at 551 #41 x2
at chSampleGraph; key Ctrl+Alt+Left -> 491-591, 491-591 at 551 #61 x2 | at chSampleGraph; key Ctrl+Alt+Right -> 511-611, 511-611 at 551 #41 x2 | at PlotRangeFrom; key Ctrl+Home -> 1-101, 1-101 at 51 #51 x2
at lvwPresets; key Ctrl+End -> 1900-2000, 1900-2000 at 1950 #51 x2 | at chSampleGraph; key Ctrl+F -> 1-2000, 1-2000 at 553 #139 x2 | at PlotRangeFrom; key Ctrl+I -> 527-577, 527-577 at 551 #25 x2
at cboZoomAmount; key Ctrl+O -> 452-652, 452-652 at 551 #100 x2
# Keys of what may not run do nothing.
range 1 2000; key Ctrl+F -> 1-2000, 1-2000 at 553 #139 x2 | range 1 2000; key Ctrl+O -> 1-2000, 1-2000 at 553 #139 x2 | range 501 509; key Ctrl+I -> 501-509, 501-509 at 509 #9 x2
range 1 101; point chSampleGraph 1 1; key Shift+Left -> 1-101, 1-101 at 1 #1 x2 | range 1 101; point chSampleGraph 1 1; key Alt+Left -> 1-101, 1-101 at 1 #1 x2 | range 1 101; point chSampleGraph 1 1; key Ctrl+Left -> 1-101, 1-101 at 1 #1 x2
range 1 101; point chSampleGraph 1 1; key Ctrl+Home -> 1-101, 1-101 at 1 #1 x2
)");
}

/// Two of the eight curves are at 40.
TEST_F(Moving, ShiftUpAndDownWalkTheCurvesByTheirHeightAndStopAtTheEnds) {
  story.Fact("height", [this] {
    const Selection& now = Main().Selected();
    const auto& series = Main().chSampleGraph.Data().Series();
    if (now.lngSelectedPoint() == 0) return std::string();
    return NumberText(series[static_cast<std::size_t>(now.intSelectedSeries() / 2)]
                          .y[static_cast<std::size_t>(now.lngSelectedPoint() - 1)]);
  });
  story.PassOver("graph");
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
