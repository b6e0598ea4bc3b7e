#include "GraphStandIn.h"
#include "samplegraph/Scrolling.h"

namespace tarnview {
namespace {

class ScrollingTest : public GraphStandIn, protected Scrolling::MainWindow {
 protected:
  void DrawSampleGraph() override {
    Draw();
    scrolling.SetUp();
  }
  void Show(int samples, int from, int to) {
    Open(samples);
    scrolling.TakeLog();
    Type(from, to);
    DrawSampleGraph();
  }

  ScrollBar hsbGraphScroll{window, "hsbGraphScroll"};
  ScrollBar hsbGraphScrollLarge{window, "hsbGraphScrollLarge"};
  Scrolling scrolling{{hsbGraphScroll, hsbGraphScrollLarge}, drawn, selection, range, log, *this};
};

TEST_F(ScrollingTest, MovesTheRangeOnEitherBar) {
  const struct {
    void (Scrolling::*move)();
    int from, to;
    const char* range;
    bool left, right;
  } kRows[] = {
      {&Scrolling::ScrollLeft, 501, 601, "491-591", true, true},
      {&Scrolling::ScrollRight, 501, 601, "511-611", true, true},
      {&Scrolling::PageLeft, 501, 601, "401-501", true, true},
      {&Scrolling::PageRight, 501, 601, "601-701", true, true},
      {&Scrolling::ScrollStart, 501, 601, "1-101", false, true},
      {&Scrolling::ScrollFinish, 501, 601, "last", true, false},
      {&Scrolling::ScrollLeft, 5, 105, "1-101", false, true},
      {&Scrolling::PageLeft, 90, 190, "1-101", false, true},
      {&Scrolling::ScrollRight, 501, 504, "502-506", true, true},
  };
  for (const int samples : {2000, 32701, 32702, 300000})
    for (const auto& row : kRows) {
      Show(samples, row.from, row.to);
      EXPECT_EQ(hsbGraphScrollLarge.Visible(), samples > 32701);
      (scrolling.*row.move)();
      const std::string last = std::to_string(samples - 100) + "-" + std::to_string(samples);
      EXPECT_EQ(Range(), row.range == std::string("last") ? last : row.range)
          << samples << " " << row.from;
      EXPECT_EQ(scrolling.CanGoLeft(), row.left) << samples << " " << row.range;
      EXPECT_EQ(scrolling.CanGoRight(), row.right) << samples << " " << row.range;
    }
}

TEST_F(ScrollingTest, StepsFollowTheWidth) {
  for (const auto& [to, large, small] :
       {std::tuple{501, 1, 1}, {505, 4, 1}, {515, 14, 1}, {526, 25, 2}, {601, 100, 10}}) {
    Show(2000, 501, to);
    EXPECT_EQ(hsbGraphScroll.LargeChange(), large) << to;
    EXPECT_EQ(hsbGraphScroll.SmallChange(), small) << to;
  }
  EXPECT_EQ(hsbGraphScroll.Min(), 50);
  EXPECT_EQ(hsbGraphScroll.Max(), 1949);
  EXPECT_EQ(hsbGraphScroll.Value(), 550);
}

TEST_F(ScrollingTest, AThumbLetGoBeyondTheBarIsBroughtBack) {
  Show(2000, 501, 601);
  for (const auto& [place, shown] :
       {std::pair{5, "1-101"}, {1999, "1900-2000"}, {1000, "951-1051"}}) {
    hsbGraphScroll.Value = place;
    EXPECT_EQ(Range(), shown) << place;
  }
  Show(2000, 1, 2000);
  hsbGraphScroll.Value = 1500;
  EXPECT_EQ(Range(), "1-2000");
}

TEST_F(ScrollingTest, ASampleOutsideTheRangeIsForgotten) {
  for (const auto& [sample, kept] : {std::pair{510, 0}, {511, 511}, {611, 611}, {612, 0}}) {
    Show(2000, 501, 601);
    selection.Highlight(sample);
    scrolling.ScrollRight();
    EXPECT_EQ(selection.lngHighlightSample(), kept) << sample;
  }
}

TEST_F(ScrollingTest, TheLongBarsThumbShowsTheShare) {
  Show(300000, 1, 150001);
  // The thumb is as long, against its way, as what is shown against what it moves over.
  EXPECT_NEAR(hsbGraphScrollLarge.LargeChange(), 32767, 1);
  Show(300000, 1, 30001);
  EXPECT_NEAR(hsbGraphScrollLarge.LargeChange(), 32767 / 9, 2);
  Show(300000, 1, 3);
  EXPECT_EQ(hsbGraphScrollLarge.LargeChange(), 2) << "never the small step's";
  hsbGraphScrollLarge.Value = hsbGraphScrollLarge.Value() + 2;
  EXPECT_EQ(Range(), "3-5") << "a page is a page";
}

TEST_F(ScrollingTest, WithNoLogNothingMoves) {
  scrolling.TakeLog();
  hsbGraphScroll.Value = 77;
  EXPECT_EQ(draws, 0);
}

}  // namespace
}  // namespace tarnview
