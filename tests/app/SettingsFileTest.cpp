// The settings file whole: from the disk into the program and its main window, and back.

#include <gmock/gmock.h>

#include "app/FullSettings.h"
#include "app/SettingsFile.h"
#include "base/Text.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using ::testing::HasSubstr;

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
  Fact("width", [this] { return NumberText(Main().Width); });
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

/// "aside" leaves one program open while the next begins, and "back" goes on in it.
TEST_F(SettingsFileTest, TwoProgramsKeepEachOthersSettings) {
  std::unique_ptr<Program> first;
  std::vector<Form*> windows;
  story.Verb("aside", [&](const auto&) {
    first = std::move(program);
    windows = host.open;
  });
  story.Verb("back", [&](const auto&) {
    program = std::move(first);
    host.open = windows;
  });
  story.Verb("add", [this](const auto&) {
    Globals& globals = program->Global();
    globals.gcolSampleGraphPresets.AddDirect(clsSampleGraphPresets::BlankPreset()).lngLogFamily = 1;
    globals.catalogue.gcolFixedDataItems.Item(3).lngColour = 77;
    globals.settings.beyond.drawAfterOpening = true;
  });
  story.Verb("car", [this](const auto& words) {
    program->Global().gcolCarDefs.Item(1).strName = words.at(0);
  });
  story.Verb("tell", [this](const auto& words) {
    std::string& text = files.files[kPath];
    text.replace(text.find(words.at(0)), words.at(0).size(), words.at(1));
  });
  story.Verb("wide", [this](const auto&) { Main().Width = Main().Height = 9000; });
  texts["ordered"] = "[General]\nChecked Data Items=3,5,36\n";
  EXPECT_STORY(story);
}

TEST_F(SettingsFileTest, TheInstallFileStandsBesideOrInTheDataFolder) {
  for (const std::string folder : {"data", "car"}) {
    files.files["/" + folder + "/Tarnview_Install.ini"] = "[General]\nLog EXE=" + folder + "\n";
    StartWith("[General]\n");
    EXPECT_EQ(Set().gstrLogEXE, folder);
  }
}

TEST_F(SettingsFileTest, ADefinitionsPresetsJoinOnAFirstRunAndAreTheUsersFromThenOn) {
  texts["first"] =
      "[General]\nFirst Run Indicator=Y\n"
      "[New Preset Sample Graphs]\nGraph 1 Name=A\nGraph 1 Log Family=2\n";
  texts["later"] = "[General]\n";
  story.Verb("none", [this](const auto&) {
    files.files.erase(kPath);
    program =
        std::make_unique<Program>(host, files, clock, processes, ProgramFolders{"/car/", "/data/"});
    program->Start("", false);
  });
  story.Verb("edit", [this](const auto&) {
    clsSampleGraphPresets& presets = program->Global().gcolSampleGraphPresets;
    presets.Item(4).strName = "Mine";
    presets.Remove(2);
    presets.AddDirect(presets.Item(5), 1);
    presets.Remove(6);
  });
  Fact("presets", [this] {
    std::string told;
    for (const auto& preset : program->Global().gcolSampleGraphPresets)
      told += std::to_string(preset.lngLogFamily) + " " + preset.strName + "; ";
    return told + std::to_string(program->Global().gcolScatterGraphPresets.Count());
  });
  EXPECT_STORY(story);
}

/// Told is the look of an item as a universal log has it and as the others do.
TEST_F(SettingsFileTest, AFreshFileLetsTheDefinitionSayHowItsItemsLook) {
  const std::string display =
      "[Generic Data Item Display Properties]\nItem 1 Colour=1\nItem 62 Colour=5\n";
  texts["first"] = "[General]\nFirst Run Indicator=Y\n" + display;
  texts["later"] = "[General]\n" + display;
  texts["bare"] = "[General]\n";
  Fact("knock retard", [this] {
    const Catalogue& catalogue = program->Global().catalogue;
    std::string told;
    for (const auto* items : {&catalogue.gcolUniversalDataItems, &catalogue.gcolFixedDataItems})
      told += " " + std::to_string(items->Item(62).lngColour) + " of style " +
              std::to_string(items->Item(62).lngLineStyle);
    return told;
  });
  EXPECT_STORY(story);
}

TEST_F(SettingsFileTest, TheCommandLineKeepsNothing) {
  Start("", FullSettings());
  Main().Unload();
  EXPECT_EQ(files.files[kPath], FullSettings());
}

}  // namespace
}  // namespace tarnview
