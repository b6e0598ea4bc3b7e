#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

class CaptureTest : public ::testing::Test {
 protected:
  EcuStories stories;
};

TEST_F(CaptureTest, GoesFromStepToStep) { EXPECT_STORY(stories); }
TEST_F(CaptureTest, IsRefusedBeforeAnythingIsTouched) { EXPECT_STORY(stories); }
TEST_F(CaptureTest, MakesRoomAndGivesItBackWhereTheProgramDoesNotStart) { EXPECT_STORY(stories); }
TEST_F(CaptureTest, ProposesNamesAndCountsThoseThatWereLoaded) { EXPECT_STORY(stories); }

}  // namespace
}  // namespace tarnview
