// The windows in which a new file is named and a binary log is converted.

#include "ecu/EcuStory.h"

namespace tarnview {
namespace {

using WindowsTest = EcuStories;

TEST_F(WindowsTest, NewDownloadBringsTheNameIntoItsForm) { EXPECT_STORY(*this); }
TEST_F(WindowsTest, ConvertBINTakesPathsThatCanBe) { EXPECT_STORY(*this); }
TEST_F(WindowsTest, ConvertBINGoesFromStepToStep) { EXPECT_STORY(*this); }

}  // namespace
}  // namespace tarnview
