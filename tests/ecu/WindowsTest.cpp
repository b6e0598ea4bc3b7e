// The windows in which a new file is named and a binary log is converted.

#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

class WindowsTest : public ::testing::Test {
 protected:
  EcuStories stories;
};

TEST_F(WindowsTest, NewDownloadBringsTheNameIntoItsForm) { EXPECT_STORY(stories); }
TEST_F(WindowsTest, ConvertBINTakesPathsThatCanBe) { EXPECT_STORY(stories); }
TEST_F(WindowsTest, ConvertBINGoesFromStepToStep) { EXPECT_STORY(stories); }

}  // namespace
}  // namespace tarnview
