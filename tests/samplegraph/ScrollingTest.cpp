#include "WholeGraph.h"

namespace tarnview {
namespace {

using ScrollingTest = WholeGraph;

TEST_F(ScrollingTest, MovesTheRangeOnEitherBar) {
  const auto moved = [this](const TableRow& row) {
    const std::string told = Moved(row);
    return told + (scrolling.CanGoLeft() ? " left" : "") + (scrolling.CanGoRight() ? " right" : "");
  };
  for (const int samples : {2000, 32701, 32702, 300000}) {
    OpenLog(samples);
    EXPECT_TRUE(bar.Enabled() && longBar.Enabled());
    EXPECT_EQ(longBar.Visible(), samples > 32701);
    EXPECT_EQ(bar.Visible(), samples <= 32701);
    ExpectTable(moved, R"(
501, 601, left -> 491-591 left right | 501, 601, right -> 511-611 left right | 501, 601, page_left -> 401-501 left right
501, 601, page_right -> 601-701 left right | 501, 601, start -> 1-101 right | 501, 601, finish; start; right -> 11-111 left right
5, 105, left -> 1-101 right | 90, 190, page_left -> 1-101 right | 3, 12, start -> 1-9 right | 501, 504, right -> 502-506 left right
)");
    Do("finish");
    EXPECT_EQ(Range(), std::to_string(samples - 4) + "-" + std::to_string(samples));
    EXPECT_FALSE(scrolling.CanGoRight());
  }
  OpenLog(2001);
  Draw("3", "12");
  Do("finish");
  EXPECT_EQ(Range(), "1993-2001") << "half an odd width goes to the even row";
}

/// A thumb may be let go where the bar does not reach any more: a zoom came in between.
TEST_F(ScrollingTest, StepsFollowTheWidthAndAThumbIsBroughtBack) {
  OpenLog(2000);
  const auto told = [this](const TableRow& row) {
    Draw(row.Text(0), row.Text(1));
    std::string all = "bar";
    for (const int one : {bar.Min(), bar.Max(), bar.Value(), bar.LargeChange(), bar.SmallChange()})
      all += " " + std::to_string(one);
    if (row.Count() <= 2) return all;
    bar.Value = row.Int(2);
    return all + ", " + Range();
  };
  ExpectTable(told, R"(
501, 503 -> bar 1 1998 501 2 1 | 501, 505 -> bar 2 1997 502 4 1 | 501, 515 -> bar 7 1992 507 14 1
501, 526 -> bar 12 1986 512 25 2 | 501, 601 -> bar 50 1949 550 100 10 | 501, 601, 5 -> bar 50 1949 550 100 10, 1-101
501, 601, 1999 -> bar 50 1949 550 100 10, 1900-2000 | 501, 601, 1000 -> bar 50 1949 550 100 10, 951-1051 | 1, 2000, 1500 -> bar 1000 1000 1000 1999 200, 1-2000
)");
}

TEST_F(ScrollingTest, ASampleOutsideTheRangeIsForgottenForTheMiddle) {
  OpenLog(2000);
  const auto sample = [this](const TableRow& row) {
    const std::string told = Moved(row);
    return told + " sample " + std::to_string(selection.lngHighlightSample());
  };
  ExpectTable(sample, R"(
501, 601, point chSampleGraph 1 10; right -> 511-611 sample 561
501, 601, point chSampleGraph 1 11; right -> 511-611 sample 511
501, 601, point chSampleGraph 1 91; left -> 491-591 sample 591
501, 601, point chSampleGraph 1 92; left -> 491-591 sample 541
)");
}

TEST_F(ScrollingTest, TheLongBarsThumbShowsTheShare) {
  OpenLog(300000);
  const auto share = [this](const TableRow& row) {
    Draw("1", row.Text(0));
    return std::to_string(longBar.LargeChange());
  };
  // As long, against its way, as what is shown against what it moves over; never the small step's.
  ExpectTable(share, R"(
300000 -> 32767 | 150001 -> 32767 | 30001 -> 3641 | 3 -> 2
)");
  longBar.Value = longBar.Value() + 2;
  EXPECT_EQ(Range(), "3-5") << "a page is a page";
}

TEST_F(ScrollingTest, WithNoLogNothingMoves) {
  scrolling.TakeLog();
  bar.Value = 77;
  EXPECT_EQ(Range(), "-");
}

}  // namespace
}  // namespace tarnview
