#include <gtest/gtest.h>

#include "samplegraph/CLongScroll.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class CLongScrollTest : public ::testing::Test {
 protected:
  CLongScrollTest() {
    scroll.Client(&bar);
    scroll.Max(1000000);
    scroll.Change = [this] { ++changes; };
  }
  RecordingHost host;
  Form form{host, "frmTry", ""};
  ScrollBar bar{form, "hsbTry"};
  CLongScroll scroll;
  int changes = 0;
};

TEST_F(CLongScrollTest, ShowsTheValueInProportionAndAtAnEndOnlyThere) {
  scroll.value(500000);
  EXPECT_EQ(bar.Value(), 16384);  // 16383.5 goes to the even
  scroll.value(999999);
  EXPECT_EQ(bar.Value(), 32766);
  scroll.value(1);
  EXPECT_EQ(bar.Value(), 1);
  scroll.value(2000000);
  EXPECT_EQ(scroll.value(), 1000000);
  EXPECT_EQ(bar.Value(), 32767);
  EXPECT_EQ(changes, 4);
}

TEST_F(CLongScrollTest, AStepOfTheBarIsAStepOfTheRange) {
  scroll.SmallChange = 7;
  scroll.LargeChange = 5000;
  scroll.value(100000);
  bar.Value = bar.Value() + 1;
  EXPECT_EQ(scroll.value(), 100007);
  bar.Value = bar.Value() - 10;
  EXPECT_EQ(scroll.value(), 95007);
}

TEST_F(CLongScrollTest, ADraggedThumbCountsInProportion) {
  bar.Value = 3277;
  EXPECT_EQ(scroll.value(), 100009);
  EXPECT_EQ(changes, 1);
}

TEST_F(CLongScrollTest, AReversedBarRunsTheOtherWay) {
  scroll.Min(1000);
  scroll.Max(0);
  scroll.value(0);
  EXPECT_EQ(bar.Value(), 32767);
  bar.Value = 32766;
  EXPECT_EQ(scroll.value(), 1);
}

}  // namespace
}  // namespace tarnview
