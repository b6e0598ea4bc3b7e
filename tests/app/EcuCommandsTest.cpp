// Capture and conversion from the main window's menus.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class EcuCommandsTest : public ProgramFixture {
 protected:
  EcuCommandsTest() {
    files.files["/link/L.exe"] = files.files["/mdos/C.exe"] = "";
    files.files["/logs/kept.bin"] = "binary";
    files.files["/car/run.txt"] = SmallLog(40);
    processes.whileRunning = [this](const std::string& command) {
      files.files[command.starts_with("/link") ? "/link/miata.dat" : "/mdos/miatatmp.txt"] =
          SmallLog(50);
    };
    host.work = [this](Form& form) { Act(form, actions[form.name]); };
  }
  void StartWithPrograms(const std::string& commandLine = "") {
    Start(commandLine,
          "[General]\r\nLog EXE=/link/L.exe\r\nConversion EXE=/mdos/C.exe\r\nDefault Working "
          "Directory=/logs\r\n");
    host.messages.clear();
  }

  std::map<std::string, std::string> actions;
};

TEST_F(EcuCommandsTest, ACapturedLogIsOpenedAndOneThatFailsLeavesNoLog) {
  StartWithPrograms("/car/run.txt");
  actions["frmNewDownload"] = "type txtFileName new\nclick cmdOK";
  Do("click mnuFileNew");
  EXPECT_EQ(Main().Caption(), "Tarnview - new.txt (FM Link Data Log)");
  EXPECT_EQ(Log().glngLastSampleTime, 50);
  EXPECT_EQ(Main().mnuRecentlyUsed(0).Caption(), "&1 /logs/new.txt");
  EXPECT_EQ(Said(), "Loading complete");
  processes.exitCodes = {-22};
  actions["frmNewDownload"] = "type txtFileName newer\nclick cmdOK";
  Do("click mnuFileNew");
  EXPECT_EQ(Main().Caption(), "Tarnview");
  EXPECT_FALSE(Log().gblnSamplesLoaded);
  EXPECT_FALSE(Main().cmdDrawGraph.Enabled());
  EXPECT_EQ(Log().gstrCurrentFile, "");
}

TEST_F(EcuCommandsTest, AConvertedLogIsOpenedWhereThatIsWanted) {
  StartWithPrograms();
  const std::string paths = "type txtPath(0) /logs/kept.bin\ntype txtPath(1) /logs/kept\n";
  actions["frmConvertBIN"] = paths + "click chkAutoLoad\nclick cmdOK";
  Do("click mnuToolsConvert");
  EXPECT_TRUE(files.files.contains("/logs/kept.txt"));
  EXPECT_FALSE(Log().gblnSamplesLoaded);
  EXPECT_EQ(program->Global().settings.gstrLastConvertedBinary, "/logs/kept.bin");
  actions["frmConvertBIN"] = paths + "click cmdOK";
  host.answers = {{Answer::Kind::Yes}};
  Do("click mnuToolsConvert");
  EXPECT_EQ(Main().Caption(), "Tarnview - kept.txt (FM Link Data Log)");
}

}  // namespace
}  // namespace tarnview
