#include "ecu/EcuTest.h"
#include "ecu/Upload.h"
#include "ecu/frmUploadConf.h"
#include "zones/MapFile.h"
#include "zones/ZoneNames.h"

namespace tarnview {
namespace {

class UploadTest : public EcuTest, public Upload::Editor {
 protected:
  UploadTest() {
    settings.gdblDefaultEngineSize = 1.8;
    settings.gdatDefaultChipDate = MakeDate(2003, 6, 9);
    settings.gintDefaultAtmosphericPressure = 98;
    form.dblEngineSize = 1.8;
    form.datChipDate = settings.gdatDefaultChipDate;
    for (std::size_t n = 0; n < form.zones.size(); ++n)
      form.zones[n] = static_cast<std::int16_t>(n);
    User("frmUpload", "click cmdOK");
    User("frmUploadConf", "click cmdYes");
  }

  ComparisonChoices ChoicesForComparison() override {
    return {{"/logs/a.txt", "/logs/b.map"}, "filter"};
  }
  std::optional<ZoneMap> LoadComparison(const std::string& path) override {
    told += "compare " + path + "\n";
    return comparison;
  }
  std::string Run() {
    upload.Run(form);
    return Told();
  }
  /// The zones of TVW.map that are left alone.
  std::string LeftAlone() {
    const MapReading sent = ParseMap(files.files["/link/TVW.map"], Settings{}, true);
    std::string names;
    for (std::size_t n = 0; n < sent.map.zones.size(); ++n)
      if (sent.map.zones[n] == -1) names += ZoneName(static_cast<int>(n)) + " ";
    return names;
  }

  Upload upload{world, *this};
  ZonesToUpload form;
  std::optional<ZoneMap> comparison;
  const std::string windows = "window frmUpload\nwindow frmUploadConf\n";
  const std::string run = "run /link/L.exe -q -s -c -f TVW.map in /link/\n";
};

TEST_F(UploadTest, OfEverythingWritesTheMapBesideTheProgram) {
  EXPECT_EQ(Run(), windows + run);
  const std::string map = files.files["/link/TVW.map"];
  EXPECT_EQ(map.substr(0, map.find(" 000")),
            " Tarnview MAP File\r\n File Created: 24-Nov-2026 14:05\r\n\r\n");
  EXPECT_EQ(map.substr(map.find(" Engine")),
            " Engine Size: 1.8\r\n Chip Date: 2003-06-09\r\n Chip Version: 0\r\n Atmospheric "
            "Pressure: 098\r\n"
            " Notes:\r\n\r\n End Of Notes\r\n");
  EXPECT_EQ(LeftAlone(), "z720 ");
  EXPECT_EQ(files.files["/link/vstrUploadCommand.txt"],
            "Tarnview Upload Command File\r\n\r\n/link/L.exe -q -s -c -f TVW.map\r\n");
  EXPECT_EQ(files.files["/logs/Uploads/TVW 2026-11-24 14-05-09.map"], map);
}

TEST_F(UploadTest, TakesTheOptionsOfItsWindow) {
  settings.gstrSerialComPort = "3";
  User("frmUpload",
       "click chkOption(0)\nclick chkOption(1)\nclick chkOption(3)\nchoose cboAutoTune Fine With "
       "Idle\nclick cmdOK");
  EXPECT_EQ(Run(), windows + "run /link/L.exe -q -p 3 -a fine_with_idle -v -f TVW.map in /link/\n");
}

TEST_F(UploadTest, IsRefusedBeforeAnythingIsTouched) {
  files.files["/link/TVW.map"] = "before";
  const auto before = files.files;
  form.dblEngineSize = 1.6;
  EXPECT_EQ(Run(), "box 5 [64]\n");
  settings.gstrLogEXE = "/link/none.exe";
  EXPECT_EQ(Run(), "box 6 [64]\n");
  settings.gstrLogEXE = "/link/L.exe";
  form.dblEngineSize = 1.8;
  User("frmUpload", "click cmdCancel");
  EXPECT_EQ(Run(), "window frmUpload\n");
  processes.anyLeftAlone = true;
  EXPECT_EQ(Run(),
            "box A program that was left alone is still running.\r\nWait until it has ended, then "
            "try again. [48]\n");
  EXPECT_EQ(files.files, before);
}

TEST_F(UploadTest, OfChangesMeasuresAgainstTheComparison) {
  User("frmUpload", "click chkOption(2)\nchoose lstCCF #1\nclick cmdOK");
  EXPECT_EQ(Run(), windows + "box 23 [48]\n" + run);
  EXPECT_EQ(LeftAlone(), "z720 ");

  files.files["/logs/b.map"] = "";
  EXPECT_EQ(Run(),
            "window frmUpload\ncompare /logs/b.map\nwindow frmUploadConf\nbox 22 [48]\n" + run);
  EXPECT_EQ(LeftAlone(), "z720 ");

  comparison.emplace();
  comparison->zones = form.zones;
  comparison->zones[1] = 99;
  comparison->zones[255] = -1;
  for (const auto& chip :
       {ChipIdentity{1.6, settings.gdatDefaultChipDate, 2},
        ChipIdentity{1.8, MakeDate(2003, 6, 8), 2}, ChipIdentity{1.8, MakeDate(2003, 6, 10), 2}}) {
    comparison->chip = chip;
    EXPECT_EQ(Run(),
              "window frmUpload\ncompare /logs/b.map\nwindow frmUploadConf\nbox 21 [48]\n" + run);
    EXPECT_EQ(LeftAlone(), "z720 ");
  }
  comparison->chip = {1.8, settings.gdatDefaultChipDate, 1};
  EXPECT_EQ(Run(), "window frmUpload\ncompare /logs/b.map\nwindow frmUploadConf\n" + run);
  const MapReading sent = ParseMap(files.files["/link/TVW.map"], settings, true);
  for (std::size_t n = 0; n < 256; ++n)
    EXPECT_EQ(sent.map.zones[n], n == 1 || n == 255 ? static_cast<int>(n) : -1);
}

TEST_F(UploadTest, LeavesTheAirAloneBetweenOldAndNewChips) {
  form.datChipDate = MakeDate(2001, 2, 28);
  EXPECT_EQ(Run(), windows + "box 28 [48]\n" + run);
  EXPECT_EQ(LeftAlone(), "z4 z720 z860 z865 z870 z875 ");
}

TEST_F(UploadTest, TellsWhereTheMapCannotBeWritten) {
  files.broken = {"/link/TVW.map"};
  EXPECT_EQ(Run(),
            "window frmUpload\nbox Problem creating temporary MAP file (/link/TVW.map). [48]\n");
}

TEST_F(UploadTest, IsOfferedAgainUntilItGoesWellOrTheUserHasEnough) {
  processes.exitCodes = {-25, -38, 0};
  EXPECT_EQ(Run(),
            windows +
                "window frmUploadConf\nwindow frmUploadConf\n"
                "box Zone map verification failed., -25 [48]\nbox Unknown Error, -38 [48]\n" +
                run + run + run);
  EXPECT_EQ(files.List("/logs/Uploads/", "*").size(), 1u) << "the same map, sent three times";

  processes.trouble = "Permission denied";
  int asked = 0;
  users["frmUploadConf"] = [&](Form& window) {
    Act(window, ++asked < 3 ? "click cmdYes" : "click cmdNo");
  };
  const std::string refused = "box L.exe could not be started:\r\nPermission denied [48]\n";
  EXPECT_EQ(Run(), windows + "window frmUploadConf\nwindow frmUploadConf\n" + refused + refused +
                       run + run);
}

TEST_F(UploadTest, IsNotOfferedAgainWhileTheProgramMayBeAtIt) {
  host.answers = {{Answer::Kind::Stop}};
  EXPECT_EQ(Run(), windows +
                       "box L.exe was left alone and may still be at work, so nothing is known of "
                       "its result. [48]\n" +
                       run);
}

TEST_F(UploadTest, IsNotSentWithoutAYes) {
  for (const char* actions : {"click cmdNo", ""}) {
    User("frmUploadConf", actions);
    if (!*actions) users.erase("frmUploadConf");
    EXPECT_EQ(Run(), windows);
  }
  EXPECT_FALSE(files.FolderExists("/logs/Uploads"));
}

TEST_F(UploadTest, KeepsTheLastFiftyMaps) {
  const std::string uploads = "/logs/Uploads/";
  files.files[uploads + "mine.map"] = files.files[uploads + "TVW.map"] = "mine";
  for (int n = 0; n < 50; ++n)
    files.files[uploads + "TVW 2025-01-01 00-00-" + std::to_string(10 + n) + ".map"] = "old";
  Run();
  Run();
  EXPECT_EQ(files.List(uploads, "TVW 2025*").size(), 48u);
  EXPECT_FALSE(files.files.contains(uploads + "TVW 2025-01-01 00-00-11.map"));
  EXPECT_TRUE(files.files.contains(uploads + "TVW 2025-01-01 00-00-12.map"));
  EXPECT_TRUE(files.files.contains(uploads + "TVW 2026-11-24 14-05-09 (2).map"));
  EXPECT_TRUE(files.files.contains(uploads + "mine.map"));
  EXPECT_TRUE(files.files.contains(uploads + "TVW.map"));

  files.failWrites = true;
  EXPECT_EQ(Run(),
            "window frmUpload\nbox Problem creating temporary MAP file (/link/TVW.map). [48]\n");
  files.failWrites = false;
  settings.gstrDefaultWorkingDirectory = "/nowhere";
  files.broken = {"/nowhere/Uploads/"};
  EXPECT_EQ(Run(),
            windows + "box No copy of the map could be kept in:\r\n/nowhere/Uploads [48]\n" + run);
}

TEST_F(UploadTest, EnablesTheComparisonWithItsBox) {
  settings.gblnUploadDefaults = {false, true, true, true};
  frmUpload window(world, ChoicesForComparison());
  const UploadOptions chosen = window.Chosen();
  EXPECT_FALSE(chosen.blnPermanentlyStore);
  EXPECT_TRUE(chosen.blnVerify && chosen.blnChangesOnly && chosen.blnVerbose);
  EXPECT_EQ(chosen.autoTune, AutoTuneMode::None);
  EXPECT_TRUE(window.txtCCF.Enabled && window.lstCCF.Enabled && window.cmdCCF.Enabled &&
              window.lblCCF.Enabled);
  window.Show();
  host.answers = {{Answer::Kind::File, "/logs/c.map"}};
  Act(window, "click cmdCCF");
  EXPECT_EQ(window.txtCCF.Text(), "/logs/c.map");
  Act(window, "choose lstCCF #0\nclick chkOption(2)");
  EXPECT_EQ(window.txtCCF.Text(), "/logs/a.txt");
  EXPECT_FALSE(window.txtCCF.Enabled || window.lstCCF.Enabled || window.cmdCCF.Enabled ||
               window.lblCCF.Enabled);
}

TEST_F(UploadTest, ConfirmsWithTheUsersOwnChip) {
  frmUploadConf window(host, settings);
  EXPECT_EQ(window.lblChipDate.Caption(), "09-Jun-2003");
  EXPECT_EQ(window.lblEngineSize.Caption(), "1.8");
  EXPECT_FALSE(window.Accepted());
}

}  // namespace
}  // namespace tarnview
