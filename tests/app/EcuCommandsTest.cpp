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
  EXPECT_STORY(story, R"(
click mnuFileNew -> +frmNewDownload
type txtFileName new; click cmdOK -> [16 ok], wrote NewDataLogDescription.txt new.bin miatatmp.bin new.txt, -frmNewDownload, graph=none, caption=Tarnview - new.txt (FM Link Data Log), PlotRangeTo=50, staDataLogViewer[0]=Loading complete, staDataLogViewer[2]=Sample Load Range 1 - 50
show mnuRecentlyUsed(0) -> mnuRecentlyUsed(0)=&1 /logs/new.txt
click mnuFileNew -> +frmNewDownload
type txtFileName newer; fail; click cmdOK -> [Error opening comm port., -22 ok], wrote miata.dat miatatmp.bin miatatmp.txt NewDataLogDescription.txt, -frmNewDownload, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, lblEmptyPlace=Open a log, or drop one here, staDataLogViewer[2]=
show "cmdDrawGraph enabled" -> cmdDrawGraph off
click mnuToolsConvert -> +frmConvertBIN
type txtPath(0) /logs/kept.bin; type txtPath(1) /logs/kept; click chkAutoLoad; click cmdOK -> wrote miatatmp.bin kept.txt, -frmConvertBIN
click mnuToolsConvert -> +frmConvertBIN
type txtPath(0) /logs/kept.bin; type txtPath(1) /logs/kept; answer yes; click cmdOK -> [File already exists.  Overwrite? yes], [16 ok], wrote kept.txt miatatmp.bin miatatmp.txt miatatmp.bin kept.txt, -frmConvertBIN, caption=Tarnview - kept.txt (FM Link Data Log), PlotRangeFrom=1, PlotRangeTo=50, lblEmptyPlace=Press Draw, or Enter, staDataLogViewer[2]=Sample Load Range 1 - 50
)");
  EXPECT_EQ(Log().glngLastSampleTime, 50);
  EXPECT_EQ(Set().gstrLastConvertedBinary, "/logs/kept.bin");
}

}  // namespace
}  // namespace tarnview
