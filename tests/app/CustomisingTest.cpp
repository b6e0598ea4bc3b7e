// The Options and what follows once they are accepted.

#include "support/OptionsActions.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class CustomisingTest : public ProgramFixture {
 protected:
  CustomisingTest() {
    files.files["/car/run.txt"] = SmallLog(40);
    files.files["/car/mine.txt"] =
        std::string_view(kDefinitionOfOptions)
            .substr(0, std::string_view(kDefinitionOfOptions).size() - 2);
    files.files["/car/mine.txt"] += "[SAMPLE GRAPH]\r\nNAME=Its own\r\nDATA ITEMS=3\r\n\r\n";
    files.files["/car/old.csv"] =
        "timestamp,Engine Speed (RPM)\r\n100,1000\r\n200,1100\r\n300,1200\r\n400,1300\r\n";
    files.folders.insert("/logs");
  }
  /// Opens the Options, does that in them, and forgets the boxes of before.
  void InOptions(const std::string& actions) {
    host.messages.clear();
    host.work = [actions](Form& form) {
      if (form.name == "frmOptions") Act(form, actions);
    };
    Do("click mnuCustomiseOptions");
  }
  std::string Boxes() {
    std::string texts;
    for (const Box& box : host.messages)
      texts += std::to_string(box.id) + "/" + std::to_string(box.style) + " ";
    return texts;
  }
  int PresetsNamed(const std::string& name) {
    int count = 0;
    for (const auto& preset : program->Global().gcolSampleGraphPresets)
      count += preset.strName == name;
    return count;
  }
};

TEST_F(CustomisingTest, AcceptedOptionsStandAfterARestartAndCancelledOnesDoNot) {
  Start("", "[General]\r\n");
  program->WriteSettingsTo("/car/Tarnview.ini");
  InOptions(
      "type txtSampleWidth 500\nchoose cboGraphColourScheme White\nclick chkScatterAutoDraw\nclick "
      "cmdOK");
  const std::string written = files.files["/car/Tarnview.ini"];
  EXPECT_NE(written.find("\r\nShow Point Sample Graph Width=500\r\n"), std::string::npos);
  EXPECT_TRUE(Main().mnuFileDrawScatter.Checked());
  Start("", written);
  EXPECT_EQ(Set().glngShowPointWidth, 500);
  EXPECT_EQ(Set().gintGraphColourScheme, 3);
  EXPECT_TRUE(Main().mnuFileDrawScatter.Checked());

  InOptions("type txtSampleWidth 600\nrow lvwDataItems RPM\nclick cmdUnCheckAll\nclick cmdCancel");
  EXPECT_EQ(Set().glngShowPointWidth, 500);
  EXPECT_TRUE(program->Global().catalogue.gcolFixedDataItems.Item(3).blnDisplay);
  EXPECT_EQ(files.files["/car/Tarnview.ini"], written);
}

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
    if (ok) Start("", files.files["/car/Tarnview.ini"]);
    for (const SettingRow& row : AllSettings()) {
      const std::string now = row.text(Set());
      if (std::string_view(row.setIn.window).starts_with("frmOptions/")) {
        EXPECT_EQ(now, row.text(ok ? wanted : settings)) << row.key;
        changed += now != row.text(settings);
      }
    }
    EXPECT_EQ(changed, ok ? 40 : 0);
    if (!ok) {
      EXPECT_EQ(files.files["/car/Tarnview.ini"], before);
    }
  }
}

TEST_F(CustomisingTest, OpenWindowsFollowAtOnce) {
  Start("/car/run.txt");
  Main().Scatter().OpenScatterGraph().DrawScatter(true);
  frmScatterGraph& scatter = *dynamic_cast<frmScatterGraph*>(host.Front());
  ASSERT_TRUE(Main().chSampleGraph.Visible());
  host.answers = {{Answer::Kind::Colour, "", 0x123456}};
  InOptions(
      "choose cboGraphColourScheme Black\nrow lvwDataItems RPM\nclick cmdDataColour\ntick "
      "lvwDataItems MAP off\n"
      "click cmdOK");
  EXPECT_EQ(Main().chSampleGraph.Data().colours.backdrop, 0);
  EXPECT_EQ(scatter.chScatterGraph.Data().colours.backdrop, 0);
  EXPECT_EQ(Main().lvwSampleDetails.RowOfTag("5"), 0);
  EXPECT_EQ(Main().lvwSampleDetails.At(Main().lvwSampleDetails.RowOfTag("3")).colour, 0x123456);
  EXPECT_EQ(program->Global().catalogue.gcolFixedDataItems.Item(3).lngColour, 0x123456);
}

TEST_F(CustomisingTest, ANewDefinitionIsTakenWithOrWithoutItsPresets) {
  struct Row {
    Answer::Kind answer;
    int own, builtIn;
  };
  for (const Row& row : {Row{Answer::Kind::Yes, 1, 0}, Row{Answer::Kind::No, 1, 1},
                         Row{Answer::Kind::Cancel, 0, 1}}) {
    Start();
    host.answers = {{Answer::Kind::Ok}, {row.answer}};
    InOptions("type txtPath(6) /car/mine.txt\nclick cmdOK");
    EXPECT_EQ(Boxes(), "86/64 0/291 ");
    EXPECT_EQ(PresetsNamed("Its own"), row.own);
    EXPECT_EQ(PresetsNamed("A/F Investigation"), row.builtIn);
    EXPECT_EQ(program->Global().gclsDataLogDefinition.strName, "Mine");
    EXPECT_EQ(program->Global().kinds.gcolLogFamilies.Item(7).strDescription, "Universal - Mine");
    EXPECT_EQ(program->Global().catalogue.gcolUniversalDataItems.Item(3).strShortName, "Revs");
  }
}

TEST_F(CustomisingTest, ALogOfTheOldDefinitionIsClosedFirstOrKeptWithIt) {
  Start("/car/old.csv|8");
  ASSERT_TRUE(Log().gblnSamplesLoaded);
  const std::string caption = Main().Caption();
  host.answers = {{Answer::Kind::Ok}, {Answer::Kind::No}};
  InOptions("type txtPath(6) /car/mine.txt\ntype txtSampleWidth 500\nclick cmdOK");
  EXPECT_EQ(Boxes(), "86/64 0/36 ");
  EXPECT_TRUE(Log().gblnSamplesLoaded);
  EXPECT_EQ(Main().Caption(), caption);
  EXPECT_NE(program->Global().gclsDataLogDefinition.strName, "Mine");
  EXPECT_EQ(Set().gstrGenericDefinitionFile, "");
  EXPECT_EQ(Set().glngShowPointWidth, 500);

  host.answers = {{Answer::Kind::Ok}, {Answer::Kind::Yes}, {Answer::Kind::No}};
  InOptions("type txtPath(6) /car/mine.txt\nclick cmdOK");
  EXPECT_EQ(Boxes(), "86/64 0/36 0/291 ");
  EXPECT_FALSE(Log().gblnSamplesLoaded);
  EXPECT_EQ(Main().Caption(), "Tarnview");
  EXPECT_EQ(Set().gstrGenericDefinitionFile, "/car/mine.txt");
}

}  // namespace
}  // namespace tarnview
