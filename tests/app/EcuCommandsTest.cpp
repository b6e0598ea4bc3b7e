// Capture and conversion from the main window's menus.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using EcuCommandsTest = ProgramFixture;

TEST_F(EcuCommandsTest, ALogThatWasCapturedOrConvertedIsOpened) {
  files.files["/link/L.exe"] = files.files["/mdos/C.exe"] = "";
  files.files["/logs/kept.bin"] = "binary";
  files.files["/car/run.txt"] = SmallLog(40);
  processes.whileRunning = [this](const std::string& command) {
    files.files[command.starts_with("/link") ? "/link/miata.dat" : "/mdos/miatatmp.txt"] =
        SmallLog(50);
  };
  story.Verb("fail", [this](const auto&) { processes.exitCodes = {-22}; });
  Start("/car/run.txt",
        "[General]\r\nLog EXE=/link/L.exe\r\nConversion EXE=/mdos/C.exe\r\nDefault Working "
        "Directory=/logs\r\n");
  EXPECT_STORY(story);
  EXPECT_EQ(Log().glngLastSampleTime, 50);
  EXPECT_EQ(Set().gstrLastConvertedBinary, "/logs/kept.bin");
}

}  // namespace
}  // namespace tarnview
