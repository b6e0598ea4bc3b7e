// The settings file whole: from the disk into the program and its main window, and back.

#include <gmock/gmock.h>

#include "app/FullSettings.h"
#include "app/SettingsFile.h"
#include "base/Text.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kPath = "/car/Tarnview.ini";

/// The lines that the first text has and the second has not.
std::vector<std::string> LinesOnlyIn(const std::string& text, const std::string& other) {
  std::vector<std::string> only;
  std::string_view rest = text, line;
  while (TakeLine(rest, line))
    if (("\n" + other).find("\n" + std::string(line) + "\r") == std::string::npos)
      only.emplace_back(line);
  return only;
}

/// "begin TEXT" starts with those settings, "end" closes; told is what has become of the files
/// beside the program: one of the texts, or the lines that are new in it and, with "-", that are
/// gone.
class SettingsFileTest : public ProgramFixture {
 protected:
  SettingsFileTest() {
    files.folders = {"/car", "/data"};
    files.files["/logs/a.txt"] = SmallLog(20);
    files.files["/pictures/a\xE9.bmp"] = "picture";
    files.files["/defs/mine.txt"] =
        RealFileSystem().Read(TARNVIEW_DATA "/Universal Data Log Formats/OBDLink.txt").value_or("");
    for (const char* part : {"mnu", "chk", "lbl", "Range", "sta", "txt", "graph", "edited"})
      story.PassOver(part);
    story.Verb("begin", [this](const auto& words) { StartWith(texts.at(words.at(0))); });
    story.Verb("end", [this](const auto&) { Main().Unload(); });
    story.Verb("break", [this](const auto&) { files.broken.insert(kPath); });
    story.Verb("mend", [this](const auto&) { files.broken.clear(); });
    story.Verb("save", [this](const auto&) { Main().WriteINIFile(); });
    story.Verb("now", [this](const auto& words) { texts[words.at(0)] = files.files[kPath]; });
    story.Event("kept", [this] { return Kept(); });
  }
  void StartWith(const std::string& settings) {
    StartKeeping(settings, {"/car/", "/data/"});
    known_[kPath] = settings;
  }
  std::string Closed() {
    Main().Unload();
    return files.files[kPath];
  }

  std::map<std::string, std::string> texts{{"full", FullSettings()}, {"none", ""}};

 private:
  std::string Kept() {
    std::vector<std::string> told;
    for (const auto& [path, text] : files.files) {
      std::string& known = known_[path];
      if (!path.starts_with(kPath) || text == known) continue;
      std::vector<std::string> lines = LinesOnlyIn(text, known);
      for (const std::string& gone : LinesOnlyIn(known, text)) lines.push_back("-" + gone);
      if (lines.size() > 20) lines = {std::to_string(lines.size()) + " lines"};
      for (const auto& [name, wanted] : texts)
        if (text == wanted) lines = {name};
      told.push_back(FileTitle(path) + ": " + Join(lines, ", "));
      known = text;
    }
    return Join(told, "; ");
  }
  std::map<std::string, std::string> known_;
};

TEST_F(SettingsFileTest, WhatIsWrittenIsReadBackByteForByte) {
  story.Verb("minimized", [this](const auto&) {
    Main().Width = Main().Height = 9000;
    Main().Left = 15;
    Main().WindowState = 1;
  });
  story.Fact("width", [this] { return Runs() ? NumberText(Main().Width) : ""; });
  texts["drawn"] = "[Beyond]\r\nDraw After Opening=Y\r\nMain Window Dividers=100,200\r\n";
  texts["not drawn"] = "[Beyond]\r\nDraw After Opening=N\r\n";
  EXPECT_STORY(story);
  EXPECT_THAT(files.accesses, ::testing::Contains("clear /car/"));
  EXPECT_TRUE(texts["beyond"].ends_with("\r\n" + texts["drawn"]));
  EXPECT_THAT(
      texts["defaults"],
      HasSubstr("[New Preset Sample Graphs]\r\n[New Preset Scatter Graphs]\r\n[Benchmarks]\r\n"));
  EXPECT_THAT(
      texts["defaults"],
      HasSubstr("[Recently Used Files]\r\n[Recently Used Power Graph Files]\r\n[Data Item"));
}

TEST_F(SettingsFileTest, WhatIsNoSettingsFileIsKeptBesideAndToldOnce) {
  texts["bare"] = "Quick Graph=0\r\n";
  texts["zeros"] = std::string("\0\0", 2);
  texts["marked"] = "\xEF\xBB\xBF[General]\r\nQuick Graph=0\r\n";
  texts["damaged"] = FullSettings();
  texts["damaged"][FullSettings().find("Zoom Amount=30") + 12] = '\0';
  texts["mended"] = FullSettings();
  texts["mended"].replace(FullSettings().find("Zoom Amount=30"), 14, "Zoom Amount=2");
  texts["cut"] = FullSettings().substr(0, FullSettings().find("Graph Y Max=") + 5);
  EXPECT_STORY(story);
}

TEST_F(SettingsFileTest, WhatThePathsNameAndIsNotThereIsToldAndStays) {
  files.files["/pipe.png"] = "";
  files.pipes = {"/pipe.png"};
  texts["gone"] =
      "[General]\nAlternative Background Picture=/none.bmp\nDefault Working Directory=/none\n"
      "Generic Data Log Definition File=/none.txt\n"
      "[New Preset Sample Graphs]\nGraph 1 Name=A\nGraph 1 Data Items=84\n";
  texts["pipe"] = "[General]\nAlternative Background Picture=/pipe.png\n";
  story.Fact("paths", [this] {
    std::string told;
    for (const char* key : {"Alternative Background Picture", "Default Working Directory",
                            "Generic Data Log Definition File"})
      told +=
          std::string(
              GetINIValue(ReadINIFileToArray(files.files[kPath]), "General", key).value_or("")) +
          " ";
    return told;
  });
  EXPECT_STORY(story);
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
  EXPECT_THAT(LinesOnlyIn(both, theirs), ElementsAre("Zoom Amount=5", "Name Car Def 1=Ours"));
  EXPECT_THAT(LinesOnlyIn(theirs, both), ElementsAre("Zoom Amount=4", "Name Car Def 1=Mine"));

  // What came from the other is no change of this one's own.
  files.files[kPath].replace(both.find("Graph Y Max=90"), 14, "Graph Y Max=80");
  first->MainWindow().WriteINIFile();
  EXPECT_THAT(LinesOnlyIn(files.files[kPath], both), ElementsAre("Graph Y Max=80"));
}

/// Ticked items are written in the order of the list.
TEST_F(SettingsFileTest, WhatAWindowPutsInOrderIsNoChangeOfItsUser) {
  const std::string settings = "[General]\nChecked Data Items=3,5,36\n";
  StartWith(settings);
  const std::unique_ptr<Program> first = std::move(program);
  StartWith(settings);
  Main().Width = Main().Height = 9000;
  Do("tick lvwSampleDetails MAP off");
  const std::string theirs = Closed();
  EXPECT_THAT(theirs, HasSubstr("\r\nChecked Data Items=36,3\r\n"));
  first->MainWindow().WriteINIFile();
  EXPECT_EQ(files.files[kPath], theirs);
}

TEST_F(SettingsFileTest, TheInstallFileStandsBesideOrInTheDataFolder) {
  for (const std::string folder : {"data", "car"}) {
    files.files["/" + folder + "/Tarnview_Install.ini"] = "[General]\nLog EXE=" + folder + "\n";
    StartWith("[General]\n");
    EXPECT_EQ(Set().gstrLogEXE, folder);
  }
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

TEST_F(SettingsFileTest, TheCommandLineKeepsNothing) {
  Start("", FullSettings());
  Main().Unload();
  EXPECT_EQ(files.files[kPath], FullSettings());
}

}  // namespace
}  // namespace tarnview
