#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

class UploadTest : public ::testing::Test {
 protected:
  EcuStories stories;
};

TEST_F(UploadTest, GoesFromStepToStep) { EXPECT_STORY(stories); }
TEST_F(UploadTest, KeepsTheLastFiftyMaps) { EXPECT_STORY(stories); }
TEST_F(UploadTest, OffersTheUsersDefaults) { EXPECT_STORY(stories); }

}  // namespace
}  // namespace tarnview
