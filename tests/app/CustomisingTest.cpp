// The Options and what follows once they are accepted.

#include "support/OptionsActions.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class CustomisingTest : public ProgramFixture {
 protected:
  CustomisingTest() {
    files.files["/car/run.txt"] = SmallLog(40);
    const std::string definition = kDefinitionOfOptions;
    files.files["/car/mine.txt"] = definition.substr(0, definition.size() - 2) +
                                   "[SAMPLE GRAPH]\r\nNAME=Its own\r\nDATA ITEMS=3\r\n\r\n";
    files.files["/car/old.csv"] =
        "timestamp,Engine Speed (RPM)\r\n100,1000\r\n200,1100\r\n300,1200\r\n400,1300\r\n";
    files.folders.insert("/logs");
    Fact("definition", [this] {
      const Globals& globals = program->Global();
      return globals.gclsDataLogDefinition.strName + ", " +
             globals.kinds.gcolLogFamilies.Item(7).strDescription + ", " +
             globals.catalogue.gcolUniversalDataItems.Item(3).strShortName;
    });
    Fact("presets", [this] {
      std::string told;
      for (const auto& preset : program->Global().gcolSampleGraphPresets)
        if (preset.strName == "Its own" || preset.strName == "A/F Investigation")
          told += preset.strName + "; ";
      return told;
    });
    Fact("looks", [this] {
      const ListView& list = Main().lvwSampleDetails;
      std::string told = std::to_string(Main().chSampleGraph.Data().colours.backdrop);
      if (auto* scatter = dynamic_cast<frmScatterGraph*>(host.Front()))
        told += " " + std::to_string(scatter->chScatterGraph.Data().colours.backdrop);
      return told + ", RPM " + std::to_string(list.At(list.RowOfTag("3")).colour) +
             (list.RowOfTag("5") > 0 ? ", MAP" : "");
    });
    Fact("width", [this] { return std::to_string(Set().glngShowPointWidth); });
    for (const char* part : {"txtS", "cboG", "chk", "lbl", "chScatterGraph values"})
      story.PassOver(part);
  }
};

/// The whole table of settings, as the next start of the program has them.
TEST_F(CustomisingTest, EachSettingStandsAfterOkAndARestartAndNoneMovesOnCancel) {
  AddFilesOfOptions(files);
  for (const bool ok : {false, true}) {
    Start("", "[General]\r\n");
    program->WriteSettingsTo("/car/Tarnview.ini");
    Main().WriteINIFile();
    const std::string before = files.files["/car/Tarnview.ini"];
    const Settings settings = Set();
    Settings wanted = settings;
    host.work = [&](Form& form) {
      auto* options = dynamic_cast<frmOptions*>(&form);
      if (!options) return;
      ChangeEachSetting(*options);
      wanted = options->Draft().settings;
      Act(*options, ok ? "click cmdOK" : "click cmdCancel");
      if (ok) wanted = options->Draft().settings;
    };
    Do("click mnuCustomiseOptions");
    int changed = 0;
    EXPECT_EQ(files.files["/car/Tarnview.ini"] == before, !ok);
    if (ok) Start("", files.files["/car/Tarnview.ini"]);
    for (const SettingRow& row : AllSettings()) {
      const std::string now = row.text(Set());
      if (std::string_view(row.setIn.window).starts_with("frmOptions/")) {
        EXPECT_EQ(now, row.text(ok ? wanted : settings)) << row.key;
        changed += now != row.text(settings);
      }
    }
    EXPECT_EQ(changed, ok ? 40 : 0);
  }
}

TEST_F(CustomisingTest, OpenWindowsFollowAtOnce) { EXPECT_STORY(story); }

TEST_F(CustomisingTest, ANewDefinitionIsTakenWithOrWithoutItsPresetsOrKeptOutByALogOfTheOld) {
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
