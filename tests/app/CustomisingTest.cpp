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
    story.Fact("definition", [this] {
      if (!Runs()) return std::string();
      const Globals& globals = program->Global();
      return globals.gclsDataLogDefinition.strName + ", " +
             globals.kinds.gcolLogFamilies.Item(7).strDescription + ", " +
             globals.catalogue.gcolUniversalDataItems.Item(3).strShortName;
    });
    story.Fact("presets", [this] {
      std::string told;
      if (!Runs()) return told;
      for (const auto& preset : program->Global().gcolSampleGraphPresets)
        if (preset.strName == "Its own" || preset.strName == "A/F Investigation")
          told += preset.strName + "; ";
      return told;
    });
    story.Fact("looks", [this] {
      if (!Runs()) return std::string();
      const ListView& list = Main().lvwSampleDetails;
      std::string told = std::to_string(Main().chSampleGraph.Data().colours.backdrop);
      if (auto* scatter = dynamic_cast<frmScatterGraph*>(host.Front()))
        told += " " + std::to_string(scatter->chScatterGraph.Data().colours.backdrop);
      return told + ", RPM " + std::to_string(list.At(list.RowOfTag("3")).colour) +
             (list.RowOfTag("5") > 0 ? ", MAP" : "");
    });
    story.Fact("width", [this] { return std::to_string(Runs() ? Set().glngShowPointWidth : 0); });
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

TEST_F(CustomisingTest, OpenWindowsFollowAtOnce) {
  EXPECT_STORY(story, R"(
start /car/run.txt -> [16 ok], +frmDataLogViewer, graph=1-40 at 20, definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, presets=A/F Investigation; , looks=12632256, RPM 4227072, MAP, width=100
click mnuModulesScatterGraph; click cmdDrawGraph -> +frmScatterGraph, looks=12632256 12632256, RPM 4227072, MAP
click frmDataLogViewer/mnuCustomiseOptions -> +frmOptions, looks=12632256, RPM 4227072, MAP
choose cboGraphColourScheme Black; row lvwDataItems RPM; answer colour 1193046; click cmdDataColour; tick lvwDataItems MAP off; click chkScatterAutoDraw; click cmdOK -> [colour "Data Item Colour" ok], -frmOptions, looks=0 0, RPM 1193046
close; show "mnuFileDrawScatter checked" -> mnuFileDrawScatter checked, -frmScatterGraph, looks=0, RPM 1193046
click mnuCustomiseOptions -> +frmOptions
row lvwDataItems RPM; click cmdUnCheckAll; click cmdCancel -> -frmOptions
)");
}

TEST_F(CustomisingTest, ANewDefinitionIsTakenWithOrWithoutItsPresetsOrKeptOutByALogOfTheOld) {
  EXPECT_STORY(story, R"(
start -> +frmDataLogViewer, definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, presets=A/F Investigation; , looks=16777215, RPM 4227072, MAP, width=100
click mnuCustomiseOptions -> +frmOptions
type txtPath(6) /car/mine.txt; answer ok; answer yes; click cmdOK -> [86 ok], [The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter Graphs.\nDo you want to clear your existing sets of Universal log family preset graphs before adding the new ones? yes], -frmOptions, definition=Mine, Universal - Mine, Revs, presets=Its own; 
start -> definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, presets=A/F Investigation; 
click mnuCustomiseOptions -> +frmOptions
type txtPath(6) /car/mine.txt; answer ok; answer no; click cmdOK -> [86 ok], [The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter Graphs.\nDo you want to clear your existing sets of Universal log family preset graphs before adding the new ones? no], -frmOptions, definition=Mine, Universal - Mine, Revs, presets=A/F Investigation; Its own; 
start -> definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, presets=A/F Investigation; 
click mnuCustomiseOptions -> +frmOptions
type txtPath(6) /car/mine.txt; answer ok; answer cancel; click cmdOK -> [86 ok], [The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter Graphs.\nDo you want to clear your existing sets of Universal log family preset graphs before adding the new ones? cancel], -frmOptions, definition=Mine, Universal - Mine, Revs
start /car/old.csv|8 -> graph=1-4 at 2, definition=Hydra Nemesis 2.1 (MX-5 Miata), Universal - Hydra Nemesis 2.1 (MX-5 Miata), RPM, looks=12632256, RPM 4227072, MAP, caption=Tarnview - old.csv (Universal - Hydra Nemesis 2.1 (MX-5 Miata)), PlotRangeFrom=1, PlotRangeTo=4, txtYMax=240, staDataLogViewer[0]=Sample: 2, Secs: 0.200, staDataLogViewer[2]=Sample Load Range 1 - 4
click mnuCustomiseOptions -> +frmOptions
type txtPath(6) /car/mine.txt; type txtSampleWidth 500; answer ok; answer no; click cmdOK -> [86 ok], [Loading the new Universal Data Log definition file will close the currently loaded datalog.\n\nAre you sure you want to continue? no], -frmOptions, width=500
click mnuCustomiseOptions -> +frmOptions
show txtPath(6); type txtPath(6) /car/mine.txt; answer ok; answer yes; answer no; click cmdOK -> txtPath(6)=, [86 ok], [Loading the new Universal Data Log definition file will close the currently loaded datalog.\n\nAre you sure you want to continue? yes], [The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter Graphs.\nDo you want to clear your existing sets of Universal log family preset graphs before adding the new ones? no], -frmOptions, graph=none, definition=Mine, Universal - Mine, Revs, presets=A/F Investigation; Its own; , looks=16777215, RPM 4227072, MAP, caption=Tarnview, PlotRangeFrom=, PlotRangeTo=, staDataLogViewer[2]=
)");
}

}  // namespace
}  // namespace tarnview
