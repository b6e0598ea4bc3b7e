#include <gtest/gtest.h>

#include "customise/frmOptions.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/OptionsActions.h"
#include "support/WindowActions.h"
#include "ui/RecordingHost.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/UniversalDataItems.h"

namespace tarnview {
namespace {

class Options : public ::testing::Test {
 protected:
  Options() {
    AddFilesOfOptions(files);
    files.files["/link/notes.txt"] = "";
    files.files["/defs/bad.txt"] = "[DATALOGDEFINITION]\r\nNAME=Bad\r\n";
    files.folders.insert("/logs");
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
  std::string Boxes() {
    std::string ids;
    for (const Box& box : host.messages) ids += std::to_string(box.id) + " ";
    host.messages.clear();
    return ids;
  }

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, ""};
  Messages messages{host, [](int) { return ""; }};
  std::unique_ptr<frmOptions> window;
};

TEST_F(Options, ShowEverySettingThatNamesThemAndGiveItBack) {
  std::size_t shown = 0;
  frmOptions& options = Open();
  for (const SettingRow& row : AllSettings()) {
    if (!std::string_view(row.setIn.window).starts_with("frmOptions/")) continue;
    EXPECT_TRUE(ControlOf(options, row.setIn.control)) << row.key;
    ++shown;
  }
  EXPECT_EQ(shown, 41u);
  Act(options, "click cmdOK");
  ASSERT_TRUE(options.Accepted());
  EXPECT_EQ(Boxes(), "") << "what was bad before and was left alone stops nobody";
  for (const SettingRow& row : AllSettings())
    EXPECT_EQ(row.text(options.Draft().settings), row.text({})) << row.key;
}

TEST_F(Options, GiveBackEverySettingThatWasChangedAndNoneAfterCancel) {
  frmOptions& options = Open();
  ChangeEachSetting(options);
  Act(options, "click cmdOK");
  EXPECT_EQ(Boxes(), "86 ");
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
  struct Row {
    const char* actions;
    const char* control;
    const char* text;
  };
  const Row rows[] = {
      {"type txtComPort 9", "txtComPort", "9"},
      {"type txtComPort 10", "txtComPort", "1"},
      {"type txtComPort x", "txtComPort", "1"},
      {"type txtChipDate 2001-9-18", "txtChipDate", "18-Sep-2001"},
      {"type txtChipDate 18 Sep 2001\ntype txtChipDate soon", "txtChipDate", "18-Sep-2001"},
      {"type txtPlotFromTemp 100", "txtPlotFromTemp", "99"},
      {"type txtPlotFromTemp -100", "txtPlotFromTemp", "-99"},
      {"type txtPlotFromTemp 12abc", "txtPlotFromTemp", "12"},
      {"type txtSampleWidth 49", "txtSampleWidth", "50"},
      {"type txtSampleWidth 1001", "txtSampleWidth", "1000"},
      {"type txtInitialPlotWidth 300001", "txtInitialPlotWidth", "300000"},
      {"type txtDefFreq 0", "txtDefFreq", "6.66"},
      {"type txtDefFreq 12.50", "txtDefFreq", "12.5"},
      {"type txtmsConvFactor 100", "txtmsConvFactor", "0.44704"},
      {"type txtmsConvFactor 99.99", "txtmsConvFactor", "99.99"},
      {"click chkSAE\ntype txtAtmos 74", "txtAtmos", "75"},
      {"click chkSAE\ntype txtAtmos 116", "txtAtmos", "115"},
      {"click chkSAE\ntype txtAmbTemp 61", "txtAmbTemp", "60"},
      {"click chkSAE\ntype txtRH 101", "txtRH", "100"},
      {"click chkSAE\ntype txtRH -1", "txtRH", "0"},
      {"click chkSAE\nchoose cboHumidityType Wet Bulb\ntype txtRH 21", "txtRH", "20"},
      {"click chkSAE\nchoose cboHumidityType Wet Bulb\ntype txtRH -31", "txtRH", "-30"},
      {"type txt3DSpec(1) 360", "txt3DSpec(1)", "359"},
      {"type txt3DSpec(1) -1\nstep updElevation(0) down", "txt3DSpec(1)", "0"},
      {"step updElevation(0) up\nstep updElevation(0) up", "txt3DSpec(1)", "242"},
      {"step updRotation(0) up", "txt3DSpec(0)", "21"},
      {"step updRotation(1) down", "txt3DSpec(2)", "19"},
      {"step updElevation(1) down", "txt3DSpec(3)", "129"},
      {"type txtFactor 0", "txtFactor", "0.01"},
      {"type txtFactor 101", "txtFactor", "100"},
  };
  for (const Row& row : rows) {
    frmOptions& options = Open();
    Act(options, row.actions);
    EXPECT_EQ(dynamic_cast<TextBox*>(ControlOf(options, row.control))->Text(), row.text)
        << row.actions;
  }
  EXPECT_EQ(Boxes(), "");
  frmOptions& options = Open();
  options.txtComPort.Text =
      std::string("33");  // Enter presses OK with the caret still in the field
  options.cmdOK.Press();
  EXPECT_EQ(options.Draft().settings.gstrSerialComPort, "1");
}

TEST_F(Options, CheckThePathsThatWereChanged) {
  struct Row {
    const char* index;
    const char* text;
    const char* after;
    const char* boxes;
  };
  const Row rows[] = {
      {"0", "/link/none.exe", "/link/none.exe", "24 "},
      {"0", "/link/notes.txt", "/link/notes.txt", "24 "},
      {"0", "/link/L.EXE", "/link/L.EXE", ""},
      {"1", "/link/C.exe", "/link/C.exe", ""},
      {"1", "/link", "/link", "24 "},
      {"2", "/pictures/b.bmp", "/pictures/b.bmp", "15 "},
      {"2", "/pictures/a.bmp", "/pictures/a.bmp", ""},
      {"3", "/new", "/new/", ""},
      {"3", "C:\\MyFolder", "C:\\MyFolder\\", "36 "},
      {"4", "/tables/x.txt", "/tables/x.txt", "15 "},
      {"5", "/tables/x.txt", "/tables/x.txt", "15 "},
      {"6", "/defs/none.txt", "/defs/none.txt", "15 "},
      {"6", "/defs/mine.txt", "/defs/mine.txt", "86 "},
  };
  for (const Row& row : rows) {
    frmOptions& options = Open();
    const std::string box = std::string("txtPath(") + row.index + ")";
    Act(options, "type " + box + " " + row.text);
    EXPECT_EQ(Boxes(), "") << "before OK";
    Act(options, "click cmdOK");
    EXPECT_EQ(Boxes(), row.boxes) << row.text;
    EXPECT_EQ(dynamic_cast<TextBox*>(ControlOf(options, box))->Text(), row.after);
    const bool good = std::string_view(row.boxes).empty() || std::string_view(row.boxes) == "86 ";
    EXPECT_EQ(options.IsShown(), !good);
    if (good) continue;
    EXPECT_EQ(options.ActiveControl(), ControlOf(options, box));
    EXPECT_EQ(options.tabOptions.Selected(),
              *row.index == '2' || *row.index == '3' || *row.index == '6' ? 3 : 2);
  }
  frmOptions& options = Open();
  Act(options, "type txtPath(5) /no\ntype txtPath(3) /nowhere\nclick cmdOK");
  EXPECT_EQ(Boxes(), "36 ") << "the first of them";
}

TEST_F(Options, BrowseForAPath) {
  frmOptions& options = Open();
  host.answers = {{Answer::Kind::Folder, "/new"}, {Answer::Kind::File, "/link/L.EXE"}};
  Act(options, "click cmdBrowse(3)\nclick cmdBrowse(0)");
  EXPECT_EQ(options.cmdBrowse(6).ToolTip(), "Click to select it");
  EXPECT_EQ(options.txtPath(3).Text(), "/new");
  EXPECT_EQ(options.txtPath(0).Text(), "/link/L.EXE");
  const auto& dialog = std::get<Object>(host.boxes[0].Get());
  EXPECT_EQ(std::get<std::string>(dialog[0].second.Get()), "folder");
  EXPECT_EQ(std::get<std::string>(dialog[1].second.Get()), "Select Default Working Directory");
}

TEST_F(Options, LoadADefinitionIntoTheDraftAlone) {
  frmOptions& options = Open();
  Act(options, "type txtPath(6) /defs/bad.txt\nclick cmdLoadGeneric");
  EXPECT_EQ(Boxes(), "74 ");
  EXPECT_EQ(options.Draft().definition.strName, DefaultDataLogDefinition().strName);

  options.Draft().catalogue.gcolUniversalDataItems.Item(3).blnDisplay = false;
  Act(options, "type txtPath(6) /defs/mine.txt\nclick cmdLoadGeneric");
  EXPECT_EQ(Boxes(), "86 ");
  EXPECT_EQ(options.Draft().definition.strName, "Mine");
  EXPECT_EQ(options.cboLogFamily.Text(), "Universal - Mine");
  EXPECT_EQ(options.cboLogFamily.ListIndex(), 6);
  EXPECT_EQ(options.cboFileType.Entries().back(), "Universal - Mine");
  EXPECT_TRUE(options.Draft().catalogue.gcolUniversalDataItems.Item(3).blnDisplay);
  EXPECT_EQ(options.Draft().catalogue.gcolUniversalDataItems.Item(3).strShortName, "Revs");

  Act(options, "row lvwDataItems Revs\nchoose imgcboDataWidth Thinner\nclick cmdOK");
  EXPECT_EQ(Boxes(), "") << "it is not read again";
  EXPECT_EQ(options.Draft().catalogue.gcolUniversalDataItems.Item(3).lngLineWidth, 2)
      << "and what was chosen stays";
  EXPECT_TRUE(options.DefinitionChanged());
  EXPECT_EQ(options.Draft().settings.gstrGenericDefinitionFile, "/defs/mine.txt");
}

TEST_F(Options, TakeTheBuiltInDefinitionForNone) {
  Settings settings;
  settings.gstrGenericDefinitionFile = "/defs/mine.txt";
  frmOptions& options = Open(settings);
  options.Draft().definition.strName = "Mine";
  Act(options, "type txtPath(6) \nclick cmdOK");
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(options.Draft().definition.strName, DefaultDataLogDefinition().strName);
  EXPECT_TRUE(options.DefinitionChanged());

  frmOptions& back = Open(settings);
  Act(back, "type txtPath(6) \nclick cmdLoadGeneric\ntype txtPath(6) /defs/mine.txt\nclick cmdOK");
  EXPECT_EQ(Boxes(), "86 ") << "the draft no longer held it";
  EXPECT_EQ(back.Draft().definition.strName, "Mine");
  EXPECT_FALSE(back.DefinitionChanged());
}

TEST_F(Options, ShowAndRecordHowADataItemIsDrawn) {
  frmOptions& options = Open();
  EXPECT_EQ(options.cboLogFamily.ListIndex(), 0);
  EXPECT_EQ(options.lvwDataItems.SelectedRow(), 1);
  host.answers = {{Answer::Kind::Colour, "", 0x123456}};
  Act(options,
      "row lvwDataItems RPM\nchoose imgcboDataStyle Dashed\nchoose imgcboDataWidth Fattest\nclick "
      "cmdDataColour\n"
      "type txtFactor 0.5");
  const clsLogDataItem& rpm = options.Draft().catalogue.gcolFixedDataItems.Item(3);
  const auto& dialog = std::get<Object>(host.boxes[0].Get());
  EXPECT_EQ(std::get<std::string>(dialog[0].second.Get()), "colour");
  EXPECT_EQ(rpm.lngLineStyle, 3);
  EXPECT_EQ(rpm.lngLineWidth, 5);
  EXPECT_EQ(rpm.lngColour, 0x123456);
  EXPECT_EQ(rpm.dblSampleDisplayFactor, 0.5);
  EXPECT_EQ(options.picDataColour.BackColour(), 0x123456);
  ASSERT_EQ(options.picDataSample.Shapes().strokes.size(), 1u);
  EXPECT_EQ(options.picDataSample.Shapes().strokes[0].pen, (Pen{0x123456, 3, 50}));
  EXPECT_EQ(options.picDataSample.Shapes().strokes[0].line, (Drawing::Line{150, 150, 1350, 150}));
  EXPECT_EQ(options.picDataSample.BackColour(), 0xC0C0C0);
  Act(options, "choose cboGraphColourScheme Black");
  EXPECT_EQ(options.picDataSample.BackColour(), 0);

  Act(options, "row lvwDataItems MAP\nrow lvwDataItems RPM");
  EXPECT_EQ(
      options.imgcboDataStyle.Text() + options.imgcboDataWidth.Text() + options.txtFactor.Text(),
      "DashedFattest0.5");
  options.Draft().catalogue.gcolFixedDataItems.Item(5).lngLineStyle = 9;
  Act(options, "row lvwDataItems MAP");
  EXPECT_EQ(options.imgcboDataStyle.Text(), "Dashed");
  EXPECT_EQ(options.Draft().catalogue.gcolFixedDataItems.Item(5).lngLineStyle, 9) << "until chosen";
  Act(options, "row lvwDataItems RPM\ntick lvwDataItems RPM off\nclick cmdReset");
  const clsLogDataItem& fresh = options.Draft().catalogue.gcolDefaultDataItems.Item(3);
  EXPECT_EQ(rpm.lngLineStyle, fresh.lngLineStyle);
  EXPECT_EQ(rpm.lngLineWidth, fresh.lngLineWidth);
  EXPECT_EQ(rpm.lngColour, fresh.lngColour);
  EXPECT_EQ(rpm.dblSampleDisplayFactor, fresh.dblSampleDisplayFactor);
  EXPECT_TRUE(rpm.blnDisplay);
}

TEST_F(Options, CheckAndUncheckTheItemsOfAFamily) {
  frmOptions& options = Open();
  const clsLogDataItems& items = options.Draft().catalogue.gcolFixedDataItems;
  const auto displayed = [&] {
    std::string names;
    for (int id = 1; id <= items.Count(); ++id)
      if (items.Item(id).InFamily(1) && items.Item(id).blnDisplay)
        names += items.Item(id).strShortName + " ";
    return names;
  };
  Act(options, "click cmdUnCheckAll");
  std::string mandatory;
  for (int id = 1; id <= items.Count(); ++id)
    if (items.Item(id).InFamily(1) && items.Item(id).blnMandatory)
      mandatory += items.Item(id).strShortName + " ";
  EXPECT_FALSE(mandatory.empty());
  EXPECT_EQ(displayed(), mandatory);
  Act(options, "tick lvwDataItems RPM on");
  EXPECT_TRUE(items.Item(3).blnDisplay);
  Act(options, "choose cboLogFamily #2\nchoose cboLogFamily #0");
  EXPECT_TRUE(options.lvwDataItems.At(options.lvwDataItems.RowOfTag("3")).checked);
  EXPECT_FALSE(options.lvwDataItems.At(options.lvwDataItems.RowOfTag("5")).checked);
  Act(options, "click cmdCheckAll");
  EXPECT_TRUE(items.Item(5).blnDisplay);
}

TEST_F(Options, ResetAUniversalItemToWhatItsColumnSays) {
  frmOptions& options = Open();
  Act(options, "type txtPath(6) /defs/mine.txt\nclick cmdLoadGeneric");
  Act(options, "row lvwDataItems Revs\nchoose imgcboDataWidth Thinnest\nclick cmdReset");
  const clsLogDataItem& revs = options.Draft().catalogue.gcolUniversalDataItems.Item(3);
  EXPECT_EQ(revs.lngLineWidth, 5);
  EXPECT_EQ(revs.lngColour, 255);
  EXPECT_EQ(revs.lngLineStyle, options.Draft().catalogue.gcolDefaultDataItems.Item(3).lngLineStyle);
}

TEST_F(Options, LetTheFieldsOfThePowerGraphFollow) {
  frmOptions& options = Open();
  EXPECT_TRUE(options.cboSpeedUnits.Enabled && options.txtmsConvFactor.Enabled);
  EXPECT_FALSE(options.cboHumidityType.Enabled || options.txtAmbTemp.Enabled ||
               options.txtAtmos.Enabled || options.txtRH.Enabled || options.txtCorrFactor.Enabled);
  EXPECT_EQ(options.lblRH.Caption(), "Relati&ve Humidity (%)");
  Act(options, "choose cboSpeedUnits KPH");
  EXPECT_EQ(options.txtmsConvFactor.Text(), "0.27778");
  Act(options, "choose cboSpeedUnits Other");
  EXPECT_EQ(options.txtmsConvFactor.Text(), "0.27778");
  Act(options, "choose cboSpeedUnits MPH\nclick chkPowerGraphGearSelection\nclick chkSAE");
  EXPECT_EQ(options.txtmsConvFactor.Text(), "0.44704");
  EXPECT_FALSE(options.cboSpeedUnits.Enabled || options.txtmsConvFactor.Enabled);
  EXPECT_TRUE(options.cboHumidityType.Enabled && options.txtAmbTemp.Enabled &&
              options.txtAtmos.Enabled && options.txtRH.Enabled && options.txtCorrFactor.Enabled);
  Act(options, "type txtAmbTemp 25\ntype txtAtmos 100");
  EXPECT_EQ(options.txtCorrFactor.Text(), "1.007");
  Act(options, "type txtRH 0\ntype txtAtmos 99");
  EXPECT_EQ(options.txtCorrFactor.Text(), "1.000");
  Act(options, "choose cboHumidityType Wet Bulb");
  EXPECT_EQ(options.lblRH.Caption(), "Wet &Bulb Temp ('C)");
  EXPECT_EQ(options.txtRH.ToolTip(),
            "Default environmental wet bulb temperature during Power Runs");

  Settings own;
  own.gdblGearSpeedConvFactor = 0.5;
  own.gintGearSpeedUnits = 1;
  EXPECT_EQ(Open(own).txtmsConvFactor.Text(), "0.5") << "what was kept stands";
}

TEST_F(Options, FindASettingByCaptionKeyOrToolTip) {
  struct Row {
    const char* text;
    int page;
    const char* control;
  };
  const Row rows[] = {
      {"colour scheme", 1, "cboGraphColourScheme"},
      {"Show Point Sample", 1, "txtSampleWidth"},
      {"retain", 2, "chkRetainBIN"},
      {"Log EXE", 2, "txtPath(0)"},
      {"default benchmark", 1, ""},
      {"working", 3, "txtPath(3)"},
      {"o2 input", 2, "txtPath(5)"},
      {"fuel graph rotation", 2, "txt3DSpec(0)"},
      {"elevation in degrees", 2, "txt3DSpec(1)"},
      {"uncheck", 4, "cmdUnCheckAll"},
      {"verify", 2, "chkUploadDefs(1)"},
      {"wet bulb", 1, ""},
      {"", 1, ""},
      {"line style", 4, "imgcboDataStyle"},
      {"Generic Data", 3, "txtPath(6)"},
  };
  for (const Row& row : rows) {
    frmOptions& options = Open();
    Act(options, std::string("type txtFind ") + row.text);
    EXPECT_EQ(options.tabOptions.Selected(), row.page) << row.text;
    EXPECT_EQ(options.ActiveControl() ? options.ActiveControl()->FullName() : "", row.control)
        << row.text;
  }
  frmOptions& options = Open();
  options.txtFind.SetFocus();
  options.txtFind.Text = std::string("com port");
  EXPECT_EQ(options.tabOptions.Selected(), 2);
  EXPECT_EQ(options.ActiveControl(), &options.txtFind) << "while the user types";
  options.Press({"Enter"});
  EXPECT_EQ(options.ActiveControl(), &options.txtComPort);
  EXPECT_TRUE(options.IsShown());
}

TEST_F(Options, OpenTheManualAtTheirPage) {
  frmOptions& options = Open();
  const std::pair<int, const char*> kPages[] = {{1, "OptionsGeneralTab"},
                                                {2, "OptionsFMLinkECUTab"},
                                                {3, "OptionsFileLocationsTab"},
                                                {4, "OptionsDataItemDefinitionsTab"}};
  for (const auto& [page, topic] : kPages) {
    options.tabOptions.Select(page);
    options.KeyGoesUp({"F1"});
    EXPECT_EQ(host.helpTopics.back(), topic);
  }
}

}  // namespace
}  // namespace tarnview
