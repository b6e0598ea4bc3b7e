#include "ecu/Capture.h"
#include "ecu/EcuTest.h"

namespace tarnview {
namespace {

class CaptureTest : public EcuTest, public Capture::MainWindow {
 protected:
  CaptureTest() {
    User("frmNewDownload", "type txtFileName run\nclick cmdOK");
    ProgramDoes("L.exe", [this] {
      files.files["/link/miata.dat"] = "binary";
      files.files["/link/miata.map"] = "zones";
    });
    ProgramDoes("C.exe", [this] {
      files.files["/mdos/miatatmp.txt"] = "text of " + files.files["/mdos/miatatmp.bin"];
    });
  }

  bool SaveChangesPrompt() override {
    told += "prompt\n";
    return mayGo;
  }
  void CloseDataLogFile() override { told += "close\n"; }
  bool LoadDataFile(const std::string& path, int fileType) override {
    told += "load " + path + " " + std::to_string(fileType) + "\n";
    return loads;
  }
  bool SaveMapFile(const std::string& path) override {
    told += "save " + path + "\n";
    return saves;
  }
  void Say(const std::string& status) override { told += "say " + status + "\n"; }
  std::string Run() {
    capture.Run();
    return Told();
  }

  Capture capture{world, *this};
  bool mayGo = true, loads = true, saves = true;
};

TEST_F(CaptureTest, OfALogGoesThroughTheConverter) {
  settings.gstrSerialComPort = "2";
  EXPECT_EQ(Run(),
            "prompt\n"
            "window frmNewDownload\n"
            "close\n"
            "load /logs/run.txt 1\n"
            "run /link/L.exe -p 2 -t in /link/\n"
            "run /mdos/C.exe in /mdos/\n");
  EXPECT_EQ(files.files["/logs/run.txt"], "text of binary");
  EXPECT_EQ(files.files["/logs/run.bin"], "binary");
  EXPECT_EQ(files.files["/link/NewDataLogDescription.txt"],
            "[General]\r\nPath and Filename=/logs/run.txt\r\n");
  EXPECT_EQ(FileNames(),
            "/link/L.exe /link/NewDataLogDescription.txt /link/miata.dat /link/miata.map "
            "/logs/old.txt /logs/run.bin "
            "/logs/run.txt /mdos/C.exe /mdos/miatatmp.bin /mdos/miatatmp.txt ");
}

TEST_F(CaptureTest, OfZonesIsSavedAtOnce) {
  User("frmNewDownload", "type txtFileName run\nclick radFileType(1)\nclick cmdOK");
  EXPECT_EQ(Run(),
            "prompt\n"
            "window frmNewDownload\n"
            "close\n"
            "load /logs/run.map 2\n"
            "save /logs/run.map\n"
            "run /link/L.exe -m -t in /link/\n");
  EXPECT_EQ(files.files["/logs/run.map"], "zones");
  EXPECT_FALSE(files.files.contains("/logs/run.bin"));
  saves = false;
  host.answers = {{Answer::Kind::Yes}};
  EXPECT_EQ(Run(),
            "prompt\n"
            "window frmNewDownload\n"
            "close\n"
            "load /logs/run.map 2\n"
            "save /logs/run.map\n"
            "say Loading failed\n"
            "box File already exists.  Overwrite? [36]\n"
            "box 12 [64]\n"
            "run /link/L.exe -m -t in /link/\n");
}

TEST_F(CaptureTest, IsRefusedBeforeAnythingIsTouched) {
  const std::string before = FileNames();
  mayGo = false;
  EXPECT_EQ(Run(), "prompt\n");
  mayGo = true;
  struct Row {
    std::string Settings::*setting;
    const char* told;
  };
  for (const Row& row : {Row{&Settings::gstrLogEXE, "prompt\nbox 6 [64]\n"},
                         Row{&Settings::gstrConversionEXE, "prompt\nbox 11 [64]\n"},
                         Row{&Settings::gstrDefaultWorkingDirectory, "prompt\nbox 32 [48]\n"}})
    for (const char* value : {"", "/nowhere/x"}) {
      const std::string good = std::exchange(settings.*row.setting, value);
      EXPECT_EQ(Run(), row.told) << value;
      settings.*row.setting = good;
    }
  User("frmNewDownload", "type txtFileName run\nclick cmdCancel");
  EXPECT_EQ(Run(), "prompt\nwindow frmNewDownload\n");
  processes.anyLeftAlone = true;
  EXPECT_EQ(Run(),
            "prompt\nbox A program that was left alone is still running.\r\nWait until it has "
            "ended, then try again. "
            "[48]\n");
  EXPECT_EQ(FileNames(), before);
}

TEST_F(CaptureTest, EndsAtTheStepThatFails) {
  const std::string upTo = "prompt\nwindow frmNewDownload\nclose\n";
  const std::string logger = "run /link/L.exe -t in /link/\n",
                    converter = "run /mdos/C.exe in /mdos/\n";
  settings.gblnRetainBinary = false;
  processes.exitCodes = {-22};
  EXPECT_EQ(Run(), upTo + "box Error opening comm port., -22 [48]\n" + logger);
  EXPECT_FALSE(files.files.contains("/logs/run.txt"));

  ProgramDoes("L.exe", [] {});
  EXPECT_EQ(Run(), upTo + "box 13 [48]\n" + logger);
  User("frmNewDownload", "click radFileType(1)\ntype txtFileName run\nclick cmdOK");
  EXPECT_EQ(Run(), upTo + "box 14 [48]\nrun /link/L.exe -m -t in /link/\n");

  User("frmNewDownload", "type txtFileName run\nclick cmdOK");
  ProgramDoes("L.exe", [this] { files.files["/link/miata.dat"] = "binary"; });
  ProgramDoes("C.exe", [] {});
  EXPECT_EQ(Run(), upTo + "box 25 [48]\n" + logger + converter);
  EXPECT_FALSE(files.files.contains("/logs/run.bin"));

  ProgramDoes("C.exe", [this] { files.files["/mdos/miatatmp.txt"] = "text"; });
  processes.exitCodes = {0, 7};  // the converter's says nothing
  loads = false;
  EXPECT_EQ(Run(), upTo + "load /logs/run.txt 1\n" + logger + converter);

  files.broken = {"/logs/run.txt"};
  EXPECT_EQ(Run(), upTo + "box File already exists.  Overwrite? [36]\n" + "box 38 [48]\n" + logger +
                       converter)
      << "with the default answer, Yes";
}

TEST_F(CaptureTest, LosesNothingWhereTheProgramDoesNotStart) {
  for (const char* name :
       {"/link/miata.dat", "/link/miata.map", "/mdos/miatatmp.bin", "/mdos/miatatmp.txt",
        "/mdos/miata.dat", "/link/miatatmp.txt", "/logs/run.txt"})
    files.files[name] = name;
  const auto before = files.files;
  processes.trouble = "Permission denied";
  EXPECT_EQ(Run(),
            "prompt\nwindow frmNewDownload\nclose\n"
            "box File already exists.  Overwrite? [36]\n"
            "box L.exe could not be started:\r\nPermission denied [48]\n"
            "run /link/L.exe -t in /link/\n");
  files.files.erase("/link/NewDataLogDescription.txt");
  EXPECT_EQ(files.files, before);

  // One that starts finds none of them.
  processes.trouble.clear();
  ProgramDoes("L.exe", [this] { told += FileNames() + "\n"; });
  EXPECT_EQ(Run(),
            "prompt\nwindow frmNewDownload\nclose\n"
            "/link/L.exe /link/NewDataLogDescription.txt /logs/old.txt /mdos/C.exe \n"
            "box File already exists.  Overwrite? [36]\n"
            "box 13 [48]\n"
            "run /link/L.exe -t in /link/\n");
}

TEST_F(CaptureTest, EndsWhereTheUserStopsWaiting) {
  host.answers = {{Answer::Kind::Stop}};
  EXPECT_EQ(
      Run(),
      "prompt\nwindow frmNewDownload\nclose\n"
      "box L.exe was left alone and may still be at work, so nothing is known of its result. [48]\n"
      "run /link/L.exe -t in /link/\n");
  EXPECT_EQ(host.waits, std::vector<std::string>{"L.exe"});
}

TEST_F(CaptureTest, ProposesNamesAndCountsThoseThatWereLoaded) {
  settings.gblnAutoFileNames = true;
  std::string proposed;
  users["frmNewDownload"] = [&](Form& form) {
    proposed = form.Find("txtFileName")->Facts()[2].first + "=" +
               std::get<std::string>(form.Find("txtFileName")->Facts()[2].second.Get());
    Act(form, "click cmdOK");
  };
  const auto propose = [&] {
    Run();
    return proposed;
  };
  EXPECT_EQ(propose(), "text=2026-11-24a");
  EXPECT_TRUE(files.files.contains("/logs/2026-11-24a.txt"));
  EXPECT_EQ(propose(), "text=2026-11-24b");
  loads = false;
  files.files["/logs/2026-11-24c.sam"] = files.files["/logs/2026-11-24d"] = "";
  EXPECT_EQ(propose(), "text=2026-11-24e");
  files.files.erase("/logs/2026-11-24e.txt");
  files.files.erase("/logs/2026-11-24e.bin");
  EXPECT_EQ(propose(), "text=2026-11-24e") << "the one before was not loaded";
  settings.gblnAutoFileNames = false;
  EXPECT_EQ(propose(), "text=");
}

}  // namespace
}  // namespace tarnview
