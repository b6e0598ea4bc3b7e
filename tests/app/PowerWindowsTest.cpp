// The main window and its power windows.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class PowerWindowsOfProgram : public ProgramFixture {
 protected:
  /// 60 samples of rising rpm.
  PowerWindowsOfProgram() {
    Open(60, "", [](SmallSample& sample) { sample.rpm = 2000 + sample.sample * 40; });
    files.files["/other.txt"] = SmallLog(30);
    files.files["/a.pow"] = "Calculation Parameters:\n";
    for (const char* part : {"chPowerGraph", "chSpeedGraph", "lblWarning"}) story.PassOver(part);
  }
};

TEST_F(PowerWindowsOfProgram, KeepTheirGraphWhenTheLogGoes) { EXPECT_STORY(story); }

TEST_F(PowerWindowsOfProgram, CopyTheRunToTheSampleGraph) {
  Main().Details().SetCheckedItems({ItemOf(kPower)});
  EXPECT_STORY(story);
  EXPECT_EQ(Log().glngDataLog(kPower, 5), 0);
}

TEST_F(PowerWindowsOfProgram, CarsAndRecentGraphsAreTheSameInAll) {
  EXPECT_STORY(story);
  EXPECT_EQ(Set().recentPowerGraphFiles, (std::vector<std::string>{"/a.pow"}));
}

}  // namespace
}  // namespace tarnview
