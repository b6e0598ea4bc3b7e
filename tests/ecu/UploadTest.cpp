#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

using UploadTest = EcuStories;

TEST_F(UploadTest, GoesFromStepToStep) { EXPECT_STORY(*this); }
TEST_F(UploadTest, KeepsTheLastFiftyMaps) { EXPECT_STORY(*this); }
TEST_F(UploadTest, OffersTheUsersDefaults) { EXPECT_STORY(*this); }

}  // namespace
}  // namespace tarnview
