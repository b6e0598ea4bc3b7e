// The main window from Draw on: range checks, what is drawn, moving and selecting.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using DrawGraph = ProgramFixture;

TEST_F(DrawGraph, WithoutALogNothingIsDrawn) {
  Open(50);
  EXPECT_STORY(story);
  Main().DrawGraph();
  EXPECT_EQ(Graph(), "none");
}

TEST_F(DrawGraph, TheSelectedSampleFollowsTheRangeAndTheKeys) {
  Open(2000, "", [](SmallSample& one) { one.rpm = 1000 + one.sample; });
  EXPECT_STORY(story);
}

TEST_F(DrawGraph, TheFixedMaximumStepsWithinItsLimits) {
  Open(50);
  EXPECT_STORY(story);
}

TEST_F(DrawGraph, TheWalkAlongThePointsHasOneRule) {
  Open(50);
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
