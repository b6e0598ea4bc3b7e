#include "customise/frmOptions.h"
#include "support/DeskTest.h"
#include "support/OptionsActions.h"
#include "support/WholeWindow.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/UniversalDataItems.h"

namespace tarnview {
namespace {

class Options : public DeskTest {
 protected:
  Options() {
    AddFilesOfOptions(files);
    files.files["/link/notes.txt"] = "";
    files.files["/defs/bad.txt"] = "[DATALOGDEFINITION]\r\nNAME=Bad\r\n";
    files.folders.insert("/logs");
    story.Verb("anew", [this](const auto&) { Open(); });
    story.Fact("item", [this] { return Drawn(); });
    story.Fact("definition", [this] {
      if (!window) return std::string();
      return window->Draft().definition.strName + (window->DefinitionChanged() ? ", changed" : "");
    });
  }

  frmOptions& Open(const Settings& settings = {}, int fileType = kFMLinkLog) {
    OptionsDraft draft{settings, DefaultDataLogDefinition(), BuildDataItemCatalogue(),
                       SetUpLogFamilies()};
    draft.catalogue.gcolUniversalDataItems =
        GenerateLogDataItemsGeneric(draft.definition, draft.catalogue.gcolFixedDataItems);
    window = std::make_unique<frmOptions>(host, frmOptions::Surroundings{files, errors, messages},
                                          std::move(draft), fileType);
    window->Show();
    return *window;
  }
  /// How the selected item is drawn: style, width, colour, factor, shown.
  std::string Drawn() {
    const int row = window ? window->lvwDataItems.SelectedRow() : 0;
    if (row == 0 || !window->IsShown()) return "";
    const OptionsDraft& draft = window->Draft();
    const bool universal = window->cboLogFamily.ListIndex() == 6;
    const int id = std::stoi(window->lvwDataItems.At(row).tag);
    const clsLogDataItem& item =
        (universal ? draft.catalogue.gcolUniversalDataItems : draft.catalogue.gcolFixedDataItems)
            .Item(id);
    return item.strShortName + " " + std::to_string(item.lngLineStyle) + " " +
           std::to_string(item.lngLineWidth) + " " + std::to_string(item.lngColour) + " " +
           NumberText(item.dblSampleDisplayFactor) + (item.blnDisplay ? "" : " hidden");
  }

  std::unique_ptr<frmOptions> window;
};

TEST_F(Options, ShowEverySettingThatNamesThemAndGiveItBack) {
  std::size_t shown = 0;
  frmOptions& options = Open();
  ExpectWhole(options, TARNVIEW_TESTS);
  for (const SettingRow& row : AllSettings()) {
    if (!std::string_view(row.setIn.window).starts_with("frmOptions/")) continue;
    EXPECT_TRUE(ControlOf(options, row.setIn.control)) << row.key;
    ++shown;
  }
  EXPECT_EQ(shown, 41u);
  Act(options, "click cmdOK");
  ASSERT_TRUE(options.Accepted());
  EXPECT_TRUE(host.messages.empty()) << "what was bad before and was left alone stops nobody";
  for (const SettingRow& row : AllSettings())
    EXPECT_EQ(row.text(options.Draft().settings), row.text({})) << row.key;
}

TEST_F(Options, GiveBackEverySettingThatWasChangedAndNoneAfterCancel) {
  frmOptions& options = Open();
  ChangeEachSetting(options);
  Act(options, "click cmdOK");
  ASSERT_TRUE(options.Accepted());
  EXPECT_TRUE(options.DefinitionChanged());
  std::string same;
  for (const SettingRow& row : AllSettings())
    if (row.text(options.Draft().settings) == row.text({}))
      same += std::string(row.key) + " (" + row.setIn.window + ")\n";
  EXPECT_EQ(same,
            "Initial Directory ()\nZoom Amount (frmDataLogViewer)\nQuick Graph (frmDataLogViewer)\n"
            "Checked Data Items (frmDataLogViewer)\nLast Converted Binary File (frmConvertBIN)\n"
            "Default Chip Version (frmOptions/FM Link ECU)\n"
            "Default Benchmark (frmZoneData)\nDisplay Zone Influence (frmDataLogViewer)\n"
            "Fix Graph Max (frmDataLogViewer)\nGraph Y Max (frmDataLogViewer)\nShow Checked Only "
            "(frmDataLogViewer)\n"
            "Main Window Dividers ()\nScatter Graph Dividers ()\n"
            "Lines A Second (frmLineFrequency)\nOwn Item Display ()\n");

  frmOptions& again = Open();
  Act(again, "click chkAutoFileNames\ntype txtSampleWidth 500\nclick cmdCancel");
  EXPECT_FALSE(again.Accepted());
}

TEST_F(Options, HoldWhatIsTypedToTheLimitsOfTheSettings) {
  Open();
  EXPECT_STORY(story);
  EXPECT_EQ(window->Draft().settings.gstrSerialComPort, "1");
}

TEST_F(Options, CheckThePathsThatWereChanged) {
  Open();
  EXPECT_STORY(story);
}

TEST_F(Options, LoadADefinitionIntoTheDraftAlone) {
  Open();
  story.PassOver("lvwDataItems");
  window->Draft().catalogue.gcolUniversalDataItems.Item(3).blnDisplay = false;
  EXPECT_STORY(story);
  EXPECT_EQ(window->Draft().catalogue.gcolUniversalDataItems.Item(3).lngLineWidth, 2)
      << "what was chosen stays";
  EXPECT_EQ(window->Draft().settings.gstrGenericDefinitionFile, "/defs/mine.txt");
}

/// Of one that was kept.
TEST_F(Options, TakeTheBuiltInDefinitionForNone) {
  story.Verb("kept", [this](const auto&) {
    Settings settings;
    settings.gstrGenericDefinitionFile = "/defs/mine.txt";
    Open(settings).Draft().definition.strName = "Mine";
  });
  EXPECT_STORY(story);
}

TEST_F(Options, ShowAndRecordHowADataItemIsDrawn) {
  Open();
  window->Draft().catalogue.gcolFixedDataItems.Item(5).lngLineStyle = 9;
  EXPECT_STORY(story);
  EXPECT_EQ(window->picDataSample.Shapes().strokes[0].line, (Drawing::Line{150, 150, 1350, 150}));
}

TEST_F(Options, CheckAndUncheckTheItemsOfAFamily) {
  Open();
  story.PassOver("lvwDataItems");
  // Of the family, as a list where they are few.
  story.Fact("displayed", [this] {
    std::string names;
    int count = 0;
    for (const auto* item : window->Draft().catalogue.gcolFixedDataItems.InDisplayOrder()) {
      if (!item->InFamily(1) || !item->blnDisplay) continue;
      names += (count > 0 ? " " : "") + item->strShortName + (item->blnMandatory ? "!" : "");
      ++count;
    }
    return count < 10 ? names : std::to_string(count);
  });
  EXPECT_STORY(story);
}

TEST_F(Options, LetTheFieldsOfThePowerGraphFollow) {
  Settings own;
  own.gdblGearSpeedConvFactor = 0.5;
  own.gintGearSpeedUnits = 1;
  Open(own);
  EXPECT_STORY(story);
  EXPECT_EQ(window->txtRH.ToolTip(),
            "Default environmental wet bulb temperature during Power Runs");
}

TEST_F(Options, FindASettingByCaptionKeyOrToolTip) { EXPECT_STORY(story); }

}  // namespace
}  // namespace tarnview
