// The whole road with real processes: a program of our own plays logger, uploader and converter.

#include <filesystem>
#include <thread>

#include "ecu/EcuStory.h"
#include "support/ScratchFolder.h"

namespace tarnview {
namespace {

namespace fs = std::filesystem;

class RealPrograms : public ::testing::Test {
 protected:
  RealPrograms() {
    for (const char* name : {"/my link", "/mdos", "/logs"}) fs::create_directories(folder + name);
    fs::copy_file(TARNVIEW_STAND_IN, folder + "/my link/L.exe");
    fs::copy_file(TARNVIEW_STAND_IN, folder + "/mdos/C.exe");
    Do("set Log EXE=@/my link/L.exe; set Conversion EXE=@/mdos/C.exe; set Serial Com Port=3; "
       "set Default Working Directory=@/logs; "
       "file @/mdos/C.exe.script=copy miatatmp.bin miatatmp.txt\n");
  }

  /// "@" stands for the folder of all files, in what is done and in what is told.
  std::string Do(const std::string& steps) {
    std::string told = story.Do(Replaced(steps, "@", folder));
    return Replaced(told, folder, "@");
  }
  static std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
      text.replace(at, from.size(), to);
    return text;
  }

  const ScratchFolder scratch;
  const std::string folder = scratch.path.string();
  RealFileSystem files;
  RealProcesses processes;
  EcuStory story{files, processes};
};

#define ASKED "prompt | frmNewDownload | close"
#define LOADED ASKED " | load @/logs/run.txt 1"
#define SENT "frmUpload | frmUploadConf"

TEST_F(RealPrograms, CaptureConvertAndUpload) {
  const fs::path before = fs::current_path();
  EXPECT_EQ(Do("file @/my link/L.exe.script=words words.txt\nwrite miata.dat samples\n; capture; "
               "read @/logs/run.txt; read @/logs/run.bin; read @/my link/words.txt"),
            LOADED " | samples | samples | @/my link/L.exe|-p|3|-t|")
      << "the path is one word, blank and all";
  EXPECT_EQ(Do("file @/my link/L.exe.script=words words.txt\ncopy TVW.map sent.map\n; upload; "
               "read @/my link/words.txt"),
            SENT " | @/my link/L.exe|-q|-s|-c|-p|3|-f|TVW.map|");
  EXPECT_NE(Do("read @/my link/sent.map"), "");
  EXPECT_EQ(Do("read @/my link/sent.map"), Do("read @/logs/Uploads/TVW 2026-11-24 14-05-09.map"));
  EXPECT_EQ(fs::current_path(), before);
}

TEST_F(RealPrograms, TellOfEachWayInWhichTheyFail) {
  // script of the logger, script of the converter; the signal of abort is 6
  ExpectTable(
      [this](const TableRow& row) {
        return InOneLine(Do("file @/my link/L.exe.script=" + Join(Split(row.Text(0), '/'), "\n") +
                            "\n; file @/mdos/C.exe.script=" + Join(Split(row.Text(1), '/'), "\n") +
                            "\n; capture"));
      },
      R"(
exit 127,  -> prompt; frmNewDownload; close; Unknown Error, 127/48
exit 128,  -> prompt; frmNewDownload; close; Unknown Error, -128/48
exit 218,  -> prompt; frmNewDownload; close; Unknown Error, -38/48
exit 234,  -> prompt; frmNewDownload; close; Error opening comm port., -22/48
exit 255,  -> prompt; frmNewDownload; close; Stop/Resume log data output command NAK'd., -1/48
write miata.dat x/kill,  -> prompt; frmNewDownload; close; Unknown Error, -122/48
write other.dat x,  -> prompt; frmNewDownload; close; 13/48
write miata.dat x, exit 3 -> prompt; frmNewDownload; close; 25/48
half miata.dat samples, half miatatmp.txt text/exit 7 -> prompt; frmNewDownload; close; load @/logs/run.txt 1
)");
  EXPECT_EQ(Do("read @/logs/run.txt"), "te") << "the loader says what it thinks of half a log";
}

TEST_F(RealPrograms, ThatDoNotStartLoseNothing) {
  Do("file @/my link/L.exe=no program at all; file @/my link/miata.dat=yesterday");
  EXPECT_EQ(Do("capture").find(ASKED " | L.exe could not be started:\r\n"), 0u);
  EXPECT_EQ(Do("read @/my link/miata.dat"), "yesterday");
}

TEST_F(RealPrograms, AreLeftAloneAndKeepTheEcuToThemselves) {
  EXPECT_EQ(Do("file @/my link/L.exe.script=wait go\n; answer stop; capture")
                .find(ASKED " | L.exe was left alone"),
            0u);
  EXPECT_EQ(Do("upload").find("A program that was left alone is still running."), 0u);
  Do("file @/my link/go=");
  while (processes.IsAnyLeftAlone()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  EXPECT_EQ(Do("upload"), SENT);
}

}  // namespace
}  // namespace tarnview
