#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

using CaptureTest = EcuStories;

TEST_F(CaptureTest, GoesFromStepToStep) { EXPECT_STORY(*this); }
TEST_F(CaptureTest, IsRefusedBeforeAnythingIsTouched) { EXPECT_STORY(*this); }
TEST_F(CaptureTest, MakesRoomAndGivesItBackWhereTheProgramDoesNotStart) { EXPECT_STORY(*this); }
TEST_F(CaptureTest, ProposesNamesAndCountsThoseThatWereLoaded) { EXPECT_STORY(*this); }

}  // namespace
}  // namespace tarnview
