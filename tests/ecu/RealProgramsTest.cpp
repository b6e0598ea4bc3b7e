// The whole road with real processes: a program of our own plays logger, uploader and converter.

#include <filesystem>
#include <thread>

#include "ecu/EcuStory.h"
#include "support/ScratchFolder.h"

namespace tarnview {
namespace {

namespace fs = std::filesystem;

class RealPrograms : public ::testing::Test {
 public:
  int expected = 0;

  /// "@" stands for the folder of all files, in what is done and in what is told.
  std::string Play(const std::string& text) {
    return Join(SplitAt(story.Play(Join(Split(text, '@'), folder)), folder), "@");
  }

 protected:
  RealPrograms() {
    for (const char* name : {"/my link", "/mdos", "/logs"}) fs::create_directories(folder + name);
    fs::copy_file(TARNVIEW_STAND_IN, folder + "/my link/L.exe");
    fs::copy_file(TARNVIEW_STAND_IN, folder + "/mdos/C.exe");
    Play(
        "set Log EXE=@/my link/L.exe\nset Conversion EXE=@/mdos/C.exe\nset Serial Com Port=3\n"
        "set Default Working Directory=@/logs\n"
        "file \"@/mdos/C.exe.script=copy miatatmp.bin miatatmp.txt\\n\"");
  }

  const ScratchFolder scratch;
  const std::string folder = scratch.path.string();
  RealFileSystem files;
  RealProcesses processes;
  EcuStory story{files, processes};
};

TEST_F(RealPrograms, CaptureConvertAndUpload) {
  const fs::path before = fs::current_path();
  EXPECT_STORY(*this);
  EXPECT_EQ(fs::current_path(), before);
}

TEST_F(RealPrograms, TellOfEachWayInWhichTheyFail) { EXPECT_STORY(*this); }

TEST_F(RealPrograms, ThatDoNotStartLoseNothing) {
  const std::string told = Play(
      "file @/my link/L.exe=no program at all; file @/my link/miata.dat=yesterday; capture\n"
      "type txtFileName run; click cmdOK\nread @/my link/miata.dat");
  EXPECT_NE(told.find("[L.exe could not be started:"), std::string::npos) << told;
  EXPECT_TRUE(told.ends_with(" -> did yesterday")) << told;
}

TEST_F(RealPrograms, AreLeftAloneAndKeepTheEcuToThemselves) {
  EXPECT_STORY(*this);
  while (processes.IsAnyLeftAlone()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  EXPECT_STORY(*this);
}

}  // namespace
}  // namespace tarnview
