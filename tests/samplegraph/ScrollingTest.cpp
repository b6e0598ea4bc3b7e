#include "WholeGraph.h"

namespace tarnview {
namespace {

using ScrollingTest = WholeGraph;

TEST_F(ScrollingTest, MovesTheRangeOnEitherBar) {
  for (const int samples : {2000, 32701, 32702, 300000}) {
    OpenLog(samples);
    EXPECT_TRUE(bar.Enabled() && longBar.Enabled());
    EXPECT_EQ(longBar.Visible(), samples > 32701);
    EXPECT_EQ(bar.Visible(), samples <= 32701);
    ExpectFacts({"range", "boxes", "ways"}, R"(
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

/// A thumb may be let go where the bar does not reach any more: a zoom came in between. That of the
/// long bar is as long, against its way, as what is shown against what it moves over.
TEST_F(ScrollingTest, TheBarsShowTheRangeAndMoveIt) {
  facts["bar"] = [this] {
    const ScrollBar& seen = longBar.Visible() ? longBar : bar;
    return " bar from " + std::to_string(seen.Min()) + " to " + std::to_string(seen.Max()) +
           " at " + std::to_string(seen.Value()) + " by " + std::to_string(seen.LargeChange()) +
           " or " + std::to_string(seen.SmallChange());
  };
  for (const int to : {5, 77, 1000, 1500, 1999})
    verbs["thumb_" + std::to_string(to)] = [this, to] { bar.Value = to; };
  verbs["two_on"] = [this] { longBar.Value = longBar.Value() + 2; };
  scrolling.TakeLog();
  ExpectFacts({"range", "bar"}, R"(
leave -> - bar from 1 to 1 at 1 by 1 or 1 | thumb_77 -> - bar from 1 to 1 at 77 by 1 or 1
)");
  OpenLog(2000);
  ExpectFacts({"range", "bar"}, R"(
leave -> - bar from 1 to 1 at 1 by 1 or 1 | 501, 503 -> 501-503 bar from 1 to 1998 at 501 by 2 or 1 | 501, 505 -> 501-505 bar from 2 to 1997 at 502 by 4 or 1
501, 515 -> 501-515 bar from 7 to 1992 at 507 by 14 or 1 | 501, 526 -> 501-526 bar from 12 to 1986 at 512 by 25 or 2 | 501, 601 -> 501-601 bar from 50 to 1949 at 550 by 100 or 10
501, 601, thumb_5 -> 1-101 bar from 50 to 1949 at 50 by 100 or 10 | 501, 601, thumb_1999 -> 1900-2000 bar from 50 to 1949 at 1949 by 100 or 10
501, 601, thumb_1000 -> 951-1051 bar from 50 to 1949 at 1000 by 100 or 10 | 1, 2000, thumb_1500 -> 1-2000 bar from 1000 to 1000 at 1000 by 1999 or 200
)");
  OpenLog(300000);
  ExpectFacts({"range", "bar"}, R"(
leave -> 1-2000 bar from 0 to 32767 at 0 by 10 or 1 | 1, 300000 -> 1-300000 bar from 0 to 32767 at 0 by 32767 or 1 | 1, 150001 -> 1-150001 bar from 0 to 32767 at 0 by 32767 or 1
1, 30001 -> 1-30001 bar from 0 to 32767 at 0 by 3641 or 1 | 1, 3 -> 1-3 bar from 0 to 32767 at 0 by 2 or 1 | 1, 3, two_on -> 3-5 bar from 0 to 32767 at 1 by 2 or 1
)");
}

TEST_F(ScrollingTest, ASampleOutsideTheRangeIsForgottenForTheMiddle) {
  OpenLog(2000);
  ExpectFacts({"range", "sample"}, R"(
501, 601, point chSampleGraph 1 10; right -> 511-611 sample 561 | 501, 601, point chSampleGraph 1 11; right -> 511-611 sample 511 | 501, 601, point chSampleGraph 1 91; left -> 491-591 sample 591
501, 601, point chSampleGraph 1 92; left -> 491-591 sample 541
)");
}

}  // namespace
}  // namespace tarnview
