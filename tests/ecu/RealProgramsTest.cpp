// The whole road with real processes: a program of our own plays logger, uploader and converter.

#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

#include "ecu/Capture.h"
#include "ecu/Upload.h"
#include "ecu/frmConvertBIN.h"
#include "support/FixedClock.h"
#include "support/ScratchFolder.h"
#include "support/WindowActions.h"
#include "ui/RecordingHost.h"
#include "zones/MapFile.h"

namespace tarnview {
namespace {

namespace fs = std::filesystem;

class RealPrograms : public ::testing::Test, public Capture::MainWindow, public Upload::Editor {
 protected:
  RealPrograms() {
    for (const char* name : {"my link", "mdos", "logs"}) fs::create_directories(folder / name);
    fs::copy_file(TARNVIEW_STAND_IN, folder / "my link" / "L.exe");
    fs::copy_file(TARNVIEW_STAND_IN, folder / "mdos" / "C.exe");
    settings.gstrLogEXE = (folder / "my link" / "L.exe").string();
    settings.gstrConversionEXE = (folder / "mdos" / "C.exe").string();
    settings.gstrDefaultWorkingDirectory = (folder / "logs").string();
    Put("mdos/C.exe.script", "copy miatatmp.bin miatatmp.txt\n");
    host.work = [this](Form& form) {
      if (form.name == "frmNewDownload") Act(form, newFile);
      if (form.name == "frmUpload") Act(form, upload);
      if (form.name == "frmUploadConf") Act(form, --tries >= 0 ? "click cmdYes" : "click cmdNo");
    };
  }

  void Put(const std::string& name, const std::string& text) { scratch.Put(name, text); }
  std::string Get(const std::string& name) const { return scratch.Get(name); }
  std::string Boxes() {
    std::string texts;
    for (const Box& box : host.messages) texts += box.text + "\n";
    host.messages.clear();
    return texts;
  }

  bool SaveChangesPrompt() override { return true; }
  void CloseDataLogFile() override {}
  bool LoadDataFile(const std::string& path, int) override {
    loaded = fs::path(path).filename().string();
    return true;
  }
  bool SaveMapFile(const std::string&) override { return true; }
  void Say(const std::string&) override {}
  ComparisonChoices ChoicesForComparison() override { return {}; }
  std::optional<ZoneMap> LoadComparison(const std::string& path) override {
    const MapReading reading = ReadMapFile(files, path, settings, false);
    return reading.read ? std::optional(reading.map) : std::nullopt;
  }

  const ScratchFolder scratch;
  const fs::path& folder = scratch.path;
  RecordingHost host;
  RealFileSystem files;
  FixedClock clock;
  RealProcesses processes;
  Settings settings;
  EXEFunctions programs{processes, host};
  Messages messages{host, [](int) { return ""; }};
  EcuWorld world{host, settings, files, clock, programs, messages};
  std::string newFile = "type txtFileName run\nclick cmdOK";
  std::string upload = "click cmdOK";
  std::string loaded;
  int tries = 1;  ///< of an upload, before the user has enough
};

TEST_F(RealPrograms, CaptureALogThroughTheConverter) {
  settings.gstrSerialComPort = "3";
  Put("my link/L.exe.script", "words words.txt\nwrite miata.dat samples\n");
  const fs::path before = fs::current_path();
  Capture(world, *this).Run();
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(loaded, "run.txt");
  EXPECT_EQ(Get("logs/run.txt"), "samples");
  EXPECT_EQ(Get("logs/run.bin"), "samples");
  EXPECT_EQ(Get("my link/words.txt"), settings.gstrLogEXE + "|-p|3|-t|")
      << "the path is one word, blank and all";
  EXPECT_EQ(fs::current_path(), before);
}

TEST_F(RealPrograms, CaptureZones) {
  newFile = "type txtFileName run\nclick radFileType(1)\nclick cmdOK";
  Put("my link/L.exe.script", "write miata.map zones\n");
  Capture(world, *this).Run();
  EXPECT_EQ(loaded + " " + Get("logs/run.map"), "run.map zones");
}

TEST_F(RealPrograms, TellOfEachWayInWhichACaptureFails) {
  struct Row {
    const char* logger;
    const char* converter;
    const char* told;
  };
  const Row rows[] = {
      {"exit 234\n", "", "Error opening comm port., -22\n"},
      {"exit 255\n", "", "Stop/Resume log data output command NAK'd., -1\n"},
      {"exit 5\n", "", "Unknown Error, 5\n"},
      {"write miata.dat x\nkill\n", "", "Unknown Error, -122\n"},  // the signal of abort is 6
      {"write other.dat x\n", "", "No binary data file produced by Data Logging/Upload program.\n"},
      {"write miata.dat x\n", "exit 3\n", "No output produced by Data Log Conversion Program.\n"},
  };
  for (const Row& row : rows) {
    Put("my link/L.exe.script", row.logger);
    Put("mdos/C.exe.script", row.converter);
    Capture(world, *this).Run();
    EXPECT_EQ(Boxes(), row.told) << row.logger;
    EXPECT_EQ(loaded, "");
  }
  Put("my link/L.exe.script", "half miata.dat samples\n");
  Put("mdos/C.exe.script", "half miatatmp.txt text\nexit 7\n");
  Capture(world, *this).Run();
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(loaded + " " + Get("logs/run.txt"), "run.txt te")
      << "the loader says what it thinks of half a log";
}

TEST_F(RealPrograms, ThatDoNotStartLoseNothing) {
  fs::permissions(folder / "my link" / "L.exe", fs::perms::owner_read);
  Put("my link/L.exe", "no program at all");
  fs::permissions(folder / "my link" / "L.exe", fs::perms::owner_all);
  Put("my link/miata.dat", "yesterday");
  Capture(world, *this).Run();
  EXPECT_EQ(Boxes().find("L.exe could not be started:\r\n"), 0u);
  EXPECT_EQ(Get("my link/miata.dat"), "yesterday");
}

TEST_F(RealPrograms, AreLeftAloneAndKeepTheEcuToThemselves) {
  Put("my link/L.exe.script", "wait go\n");
  host.answers = {{Answer::Kind::Stop}};
  Capture(world, *this).Run();
  EXPECT_EQ(Boxes(),
            "L.exe was left alone and may still be at work, so nothing is known of its result.\n");
  Upload(world, *this).Run({});
  EXPECT_EQ(Boxes(),
            "A program that was left alone is still running.\r\nWait until it has ended, then try "
            "again.\n");
  Put("my link/go", "");
  while (processes.IsAnyLeftAlone()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

TEST_F(RealPrograms, TakeAnUploadAndSayHowItWent) {
  Put("my link/L.exe.script", "words words.txt\ncopy TVW.map sent.map\n");
  const ZonesToUpload form{settings.gdblDefaultEngineSize, settings.gdatDefaultChipDate, {}};
  Upload(world, *this).Run(form);
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(Get("my link/words.txt"), settings.gstrLogEXE + "|-q|-s|-c|-f|TVW.map|");
  EXPECT_NE(Get("my link/sent.map"), "");
  EXPECT_EQ(Get("logs/Uploads/TVW 2026-11-24 14-05-09.map"), Get("my link/sent.map"));

  // Each exit code is told, and the user may try again.
  for (const auto& [code, text] :
       {std::pair{231, "Zone map verification failed., -25\n"},
        std::pair{218, "Unknown Error, -38\n"}, std::pair{1, "Unknown Error, 1\n"}}) {
    Put("my link/L.exe.script", "exit " + std::to_string(code) + "\n");
    tries = 2;
    Upload(world, *this).Run(form);
    EXPECT_EQ(Boxes(), std::string(text) + text);
  }
}

TEST_F(RealPrograms, TakeTheChangesOnly) {
  ZonesToUpload form{settings.gdblDefaultEngineSize, settings.gdatDefaultChipDate, {}};
  for (std::size_t n = 0; n < form.zones.size(); ++n)
    form.zones[n] = static_cast<std::int16_t>(n % 100);
  ZoneMap old;
  old.zones = form.zones;
  old.zones[6] = old.zones[100] = 77;
  Put("my link/L.exe.script", "copy TVW.map sent.map\n");
  const std::string path = (folder / "logs" / "old.map").string();
  upload = "click chkOption(2)\ntype txtCCF " + path + "\nclick cmdOK";
  struct Row {
    double engineSize;
    const char* told;
    const char* zones;  ///< the first that are sent
  };
  const Row rows[] = {{1.6, "", "6=6 100=0 "},
                      {1.8, "The Change Comparison File is from a", "0=0 1=1 "},
                      {0, "The Change Comparison File does not exist.", "0=0 1=1 "}};
  for (const Row& row : rows) {
    old.chip = {row.engineSize, settings.gdatDefaultChipDate, 0};
    Put("logs/old.map", MapText(old, clock.Now()));
    if (row.engineSize == 0) fs::remove(path);
    tries = 1;
    Upload(world, *this).Run(form);
    const std::string boxes = Boxes();
    EXPECT_TRUE(row.told[0] ? boxes.starts_with(row.told) : boxes.empty())
        << row.engineSize << boxes;
    const ZoneSettings sent = ParseMap(Get("my link/sent.map"), settings, true).map.zones;
    std::string zones;
    for (std::size_t n = 0, found = 0; n < sent.size() && found < 2; ++n)
      if (sent[n] != -1 && ++found)
        zones += std::to_string(n) + "=" + std::to_string(sent[n]) + " ";
    EXPECT_EQ(zones, row.zones) << row.engineSize;
  }
}

TEST_F(RealPrograms, ConvertABinaryLog) {
  Put("logs/kept.bin", "kept");
  frmConvertBIN window(world, "");
  window.Show();
  Act(window, "type txtPath(0) " + (folder / "logs" / "kept.bin").string() + "\ntype txtPath(1) " +
                  (folder / "logs" / "new").string() + "\nclick cmdOK");
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(Get("logs/new.txt"), "kept");
}

}  // namespace
}  // namespace tarnview
