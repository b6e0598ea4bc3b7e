// The settings file whole: from the disk into the program and its main window, and back.

#include <gmock/gmock.h>

#include "app/FullSettings.h"
#include "app/SettingsFile.h"
#include "base/Text.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kPath = "/car/Tarnview.ini";

class SettingsFileTest : public ProgramFixture {
 protected:
  SettingsFileTest() {
    files.folders = {"/car", "/data"};
    files.files["/logs/a.txt"] = SmallLog(20);
    files.files["/pictures/a\xE9.bmp"] = "picture";
    files.files["/defs/mine.txt"] =
        RealFileSystem().Read(TARNVIEW_DATA "/Universal Data Log Formats/OBDLink.txt").value_or("");
  }
  void StartWith(const std::string& settings) { StartKeeping(settings, {"/car/", "/data/"}); }
  std::string Closed() {
    Main().Unload();
    return files.files[kPath];
  }
  /// What the settings file says on closing, after a start with another.
  std::string ClosedAfter(const std::string& settings) {
    StartWith(settings);
    return Closed();
  }
};

TEST_F(SettingsFileTest, AFileWithEveryKeySetComesBackByteForByte) {
  EXPECT_EQ(ClosedAfter(FullSettings()), FullSettings());
  EXPECT_EQ(Boxes(), Ids{});
}

TEST_F(SettingsFileTest, TheDefaultsComeBackByteForByteToo) {
  StartWith("");
  EXPECT_TRUE(Main().chkQuickGraph.Value());
  EXPECT_EQ(Main().Details().CheckedItems(), (std::vector<int>{3, 5, 7, 17, 20, 21, 23, 36}));
  const std::string written = Closed();
  EXPECT_EQ(Boxes(), (Ids{}));
  EXPECT_THAT(written, Not(HasSubstr("Window State")));
  EXPECT_THAT(
      written,
      HasSubstr("[New Preset Sample Graphs]\r\n[New Preset Scatter Graphs]\r\n[Benchmarks]\r\n"));
  EXPECT_THAT(
      written,
      HasSubstr("[Recently Used Files]\r\n[Recently Used Power Graph Files]\r\n[Data Item"));
  EXPECT_EQ(ClosedAfter(written), written);
}

TEST_F(SettingsFileTest, WhatTheWindowShowsIsKept) {
  StartWith("");
  Main().Width = 9000;
  Main().Left = 15;
  Main().WindowState = 1;  // minimized, which nobody wants back
  Main().cboZoomAmount.Do({"type", {"7"}});
  Main().chkQuickGraph.Do({"click", {}});
  Main().chkFixY.Do({"click", {}});
  Main().txtYMax.Text = "90";
  Main().mnuFileDrawScatter.Checked = true;
  Main().Details().SetCheckedItems({3, 20});
  Main().chkShowCheckedOnly.Do({"click", {}});
  Main().LoadDataFile("/logs/a.txt", 0);
  const std::string written = Closed();
  for (const char* line :
       {"Zoom Amount=2", "Quick Graph=0", "Fix Graph Max=1", "Graph Y Max=90",
        "Scatter Graph Auto Draw=Y", "Checked Data Items=20,3", "Show Checked Only=Y",
        "File 0=1|/logs/a.txt", "Window State=0", "Window Left=15", "Window Width=9000"})
    EXPECT_THAT(written, HasSubstr("\n" + std::string(line) + "\r\n"));
  EXPECT_EQ(Said(), "Done");
  StartWith(written);
  EXPECT_EQ(Main().Width, 9000);
  EXPECT_EQ(Main().mnuRecentlyUsed(0).Tag, "1|/logs/a.txt");
}

TEST_F(SettingsFileTest, AFullDiskLeavesTheOldFile) {
  StartWith(FullSettings());
  EXPECT_THAT(files.accesses, ::testing::Contains("clear /car/"));
  files.failWrites = true;
  EXPECT_EQ(Closed(), FullSettings());
  EXPECT_EQ(Boxes(), (Ids{39}));
}

TEST_F(SettingsFileTest, WhatIsNoSettingsFileIsKeptBesideAndToldOnce) {
  std::string kept = "/car/Tarnview.ini.bad";
  for (const std::string& bad : {std::string("Quick Graph=0\r\n"), std::string("\0\0", 2)}) {
    host.messages.clear();
    StartWith(bad);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_THAT(host.messages[0].text, HasSubstr("It is kept as:\r\n" + kept));
    EXPECT_TRUE(Main().chkQuickGraph.Value());
    EXPECT_THAT(Closed(), HasSubstr("[General]\r\n"));
    EXPECT_EQ(files.files[kept], bad);
    StartWith(files.files[kPath]);
    EXPECT_EQ(host.messages.size(), 1u);
    kept += "2";  // no later one takes the place of the first
  }
  StartWith("\xEF\xBB\xBF[General]\r\nQuick Graph=0\r\n");  // saved by an editor
  EXPECT_FALSE(Main().chkQuickGraph.Value());
}

TEST_F(SettingsFileTest, OfADamagedFileEachUndamagedKeyIsRead) {
  std::string damaged = FullSettings();
  damaged[damaged.find("Zoom Amount=30") + 12] = '\0';
  files.files["/car/Tarnview.ini.old"] = "[General]\r\n";
  StartWith(damaged);
  ASSERT_EQ(host.messages.size(), 1u);
  EXPECT_EQ(
      host.messages[0].text,
      "The settings file is damaged. What can be read of it holds:\r\n/car/Tarnview.ini\r\n\r\n"
      "It is kept as:\r\n/car/Tarnview.ini.bad\r\nThe last good settings "
      "are:\r\n/car/Tarnview.ini.old");
  std::string wanted = FullSettings();
  wanted.replace(wanted.find("Zoom Amount=30"), 14, "Zoom Amount=2");
  EXPECT_EQ(Closed(), wanted);
  EXPECT_EQ(files.files["/car/Tarnview.ini.bad"], damaged);
  EXPECT_EQ(files.files["/car/Tarnview.ini.old"], "[General]\r\n");

  const std::string cut = FullSettings().substr(0, FullSettings().find("Graph Y Max=") + 5);
  StartWith(cut);
  EXPECT_EQ(host.messages.size(), 1u);
  EXPECT_EQ(files.files["/car/Tarnview.ini.bad2"], cut);
  EXPECT_EQ(Main().cboZoomAmount.Text(), "30");
}

TEST_F(SettingsFileTest, TheSettingsFromBeforeThisRunStayBeside) {
  StartWith(FullSettings());
  Closed();
  EXPECT_FALSE(files.files.contains("/car/Tarnview.ini.old"));
  StartWith(FullSettings());
  Main().txtYMax.Text = "90";
  Main().WriteINIFile();
  Main().txtYMax.Text = "100";
  EXPECT_THAT(Closed(), HasSubstr("Graph Y Max=100\r\n"));
  EXPECT_EQ(files.files["/car/Tarnview.ini.old"], FullSettings());
}

/// The lines that the first text has and the second has not.
std::string LinesOnlyIn(const std::string& text, const std::string& other) {
  std::string only;
  std::string_view rest = text, line;
  while (TakeLine(rest, line))
    if (("\n" + other).find("\n" + std::string(line) + "\r") == std::string::npos)
      only += std::string(line) + "\n";
  return only;
}

TEST_F(SettingsFileTest, TwoProgramsKeepEachOthersSettings) {
  StartWith(FullSettings());
  const std::unique_ptr<Program> first = std::move(program);
  // The other one starts, changes what it likes, and ends.
  StartWith(FullSettings());
  Main().txtYMax.Text = "90";
  Main().cboZoomAmount.Do({"type", {"4"}});
  Main().LoadDataFile("/logs/a.txt", 0);
  program->Global()
      .gcolSampleGraphPresets.AddDirect(clsSampleGraphPresets::BlankPreset())
      .lngLogFamily = 1;
  program->Global().catalogue.gcolFixedDataItems.Item(3).lngColour = 77;
  Set().beyond.drawAfterOpening = true;
  const std::string theirs = Closed();

  first->MainWindow().cboZoomAmount.Do({"type", {"5"}});
  first->Global().gcolCarDefs.Item(1).strName = "Ours";
  first->MainWindow().WriteINIFile();
  const std::string both = files.files[kPath];
  EXPECT_EQ(LinesOnlyIn(both, theirs), "Zoom Amount=5\nName Car Def 1=Ours\n");
  EXPECT_EQ(LinesOnlyIn(theirs, both), "Zoom Amount=4\nName Car Def 1=Mine\n");

  // What came from the other is no change of this one's own.
  files.files[kPath].replace(both.find("Graph Y Max=90"), 14, "Graph Y Max=80");
  first->MainWindow().WriteINIFile();
  EXPECT_EQ(LinesOnlyIn(files.files[kPath], both), "Graph Y Max=80\n");
}

TEST_F(SettingsFileTest, AFileThatCannotBeReadIsNotWrittenOver) {
  files.broken.insert(kPath);
  StartWith(FullSettings());
  ASSERT_EQ(host.messages.size(), 1u);
  EXPECT_THAT(host.messages[0].text, HasSubstr("cannot be read"));
  files.broken.clear();
  EXPECT_EQ(Closed(), FullSettings());
}

TEST_F(SettingsFileTest, WhatThePathsNameAndIsNotThereIsTold) {
  StartWith(
      "[General]\nAlternative Background Picture=/none.bmp\nDefault Working Directory=/none\n"
      "Generic Data Log Definition File=/none.txt\n"
      "[New Preset Sample Graphs]\nGraph 1 Name=A\nGraph 1 Data Items=84\n");
  EXPECT_EQ(Boxes(), (Ids{18, 32, 79, 43}));
  const std::string written = Closed();
  for (const char* line :
       {"Alternative Background Picture=/none.bmp", "Default Working Directory=/none",
        "Generic Data Log Definition File=/none.txt"})
    EXPECT_THAT(written, HasSubstr(std::string(line) + "\r\n"));
}

TEST_F(SettingsFileTest, APictureThatIsNoFileIsNeverOpened) {
  files.files["/pipe.png"] = "";
  files.pipes = {"/pipe.png"};
  StartWith("[General]\nAlternative Background Picture=/pipe.png\n");
  EXPECT_EQ(Boxes(), (Ids{18}));
  EXPECT_EQ(Main().fraPicture.BackgroundPicture(), "");
  EXPECT_THAT(Closed(), HasSubstr("Alternative Background Picture=/pipe.png\r\n"));
}

TEST_F(SettingsFileTest, TheInstallFileStandsBesideOrInTheDataFolder) {
  files.files["/data/Tarnview_Install.ini"] = "[General]\nLog EXE=data\n";
  StartWith("[General]\n");
  EXPECT_EQ(Set().gstrLogEXE, "data");
  files.files["/car/Tarnview_Install.ini"] = "[General]\nLog EXE=beside\n";
  StartWith("[General]\n");
  EXPECT_EQ(Set().gstrLogEXE, "beside");
}

/// "family name" of each preset of a section, in the file's order.
std::string PresetsIn(const std::string& settings, const std::string& section) {
  const IniTable table = ReadINIFileToArray(settings);
  std::string names;
  for (int n = 1;; ++n) {
    const std::string graph = "Graph " + std::to_string(n);
    const std::string* name = table.Find(section, graph + " Name");
    if (!name) return names;
    names += *table.Find(section, graph + " Log Family") + " " + *name + "\n";
  }
}

TEST_F(SettingsFileTest, ADefinitionsPresetsJoinOnAFirstRunAndAreTheUsersFromThenOn) {
  const std::string section = "New Preset Sample Graphs";
  StartWith(
      "[General]\nFirst Run Indicator=Y\n[New Preset Sample Graphs]\nGraph 1 Name=A\nGraph 1 Log "
      "Family=2\n");
  clsSampleGraphPresets* presets = &program->Global().gcolSampleGraphPresets;
  presets->Item(4).strName = "Mine";
  presets->Remove(2);
  presets->AddDirect(presets->Item(5), 1);
  presets->Remove(6);
  std::string written = Closed();
  const std::string kept =
      "7 Power Graphing\n2 A\n7 A/F Investigation\n7 Mine\n7 Knock Investigation 2\n7 Clear All "
      "Checkboxes\n";
  EXPECT_EQ(PresetsIn(written, section), kept);
  StartWith(written);
  written = Closed();
  EXPECT_EQ(PresetsIn(written, section), kept);
  EXPECT_THAT(PresetsIn(written, "New Preset Scatter Graphs"), HasSubstr("7 Spool Up (MAP)\n"));

  StartWith("[General]\n");
  EXPECT_EQ(PresetsIn(Closed(), section), "");
  files.files.erase(kPath);
  program =
      std::make_unique<Program>(host, files, clock, processes, ProgramFolders{"/car/", "/data/"});
  program->Start("", false);
  EXPECT_THAT(PresetsIn(Closed(), section), ::testing::StartsWith("7 Overview\n"));
}

TEST_F(SettingsFileTest, AFreshFileLetsTheDefinitionSayHowItsItemsLook) {
  const std::string display =
      "[Generic Data Item Display Properties]\nItem 1 Colour=1\nItem 62 Colour=5\n";
  constexpr int kKnockRetard = 62;
  constexpr Colour kOfBuiltInDefinition = 8404992;
  StartWith("[General]\nFirst Run Indicator=Y\n" + display);
  EXPECT_EQ(program->Global().catalogue.gcolUniversalDataItems.Item(kKnockRetard).lngColour,
            kOfBuiltInDefinition);
  EXPECT_THAT(Closed(), Not(HasSubstr("First Run")));
  for (const bool told : {true, false}) {  // else as the built-in items do
    StartWith("[General]\n" + (told ? display : ""));
    const Catalogue& catalogue = program->Global().catalogue;
    const clsLogDataItem& item = catalogue.gcolUniversalDataItems.Item(kKnockRetard);
    const clsLogDataItem& builtIn = catalogue.gcolFixedDataItems.Item(kKnockRetard);
    EXPECT_EQ(item.lngColour, told ? 5 : builtIn.lngColour);
    EXPECT_EQ(item.lngLineStyle, builtIn.lngLineStyle);
    EXPECT_NE(builtIn.lngColour, kOfBuiltInDefinition);
  }
}

TEST_F(SettingsFileTest, SettingsBeyondTheSettledOnesStandLastAndOnlyWhereTheyAreNotTheirDefault) {
  const std::string drawn = "[Beyond]\r\nDraw After Opening=Y\r\n";
  EXPECT_TRUE(ClosedAfter(drawn).ends_with("\r\n" + drawn));
  EXPECT_TRUE(Set().beyond.drawAfterOpening);
  EXPECT_THAT(ClosedAfter("[Beyond]\r\nDraw After Opening=N\r\n"), Not(HasSubstr("Beyond")));
  EXPECT_FALSE(Set().beyond.drawAfterOpening);
}

TEST_F(SettingsFileTest, TheCommandLineKeepsNothing) {
  Start("", FullSettings());
  Main().Unload();
  EXPECT_EQ(files.files[kPath], FullSettings());
}

}  // namespace
}  // namespace tarnview
