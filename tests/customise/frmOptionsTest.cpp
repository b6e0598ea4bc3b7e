#include "customise/frmOptions.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/OptionsActions.h"
#include "support/Story.h"
#include "support/WholeWindow.h"
#include "support/WindowActions.h"
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
    story.Verb("anew", [this](const auto&) { Open(); });
    story.Fact("item", [this] { return Drawn(); });
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

  /// How the selected item is drawn: style, width, colour, factor, shown.
  std::string Drawn() {
    const int row = window->lvwDataItems.SelectedRow();
    if (!window->IsShown() || row == 0) return "";
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

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, ""};
  Messages messages{host, [](int) { return ""; }};
  std::unique_ptr<frmOptions> window;
  Story story{host};
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
  Open();
  EXPECT_STORY(story, R"(
type txtComPort 9 -> txtComPort=9
type txtComPort 10 -> txtComPort=1
type txtComPort x
type txtChipDate 2001-9-18 -> txtChipDate=18-Sep-2001
type txtChipDate soon
type txtPlotFromTemp 100 -> txtPlotFromTemp=99
type txtPlotFromTemp -100 -> txtPlotFromTemp=-99
type txtPlotFromTemp 12abc -> txtPlotFromTemp=12
type txtSampleWidth 49 -> txtSampleWidth=50
type txtSampleWidth 1001 -> txtSampleWidth=1000
type txtInitialPlotWidth 300001 -> txtInitialPlotWidth=300000
type txtDefFreq 0
type txtDefFreq 12.50 -> txtDefFreq=12.5
type txtmsConvFactor 100
type txtmsConvFactor 99.99 -> txtmsConvFactor=99.99
click chkSAE -> chkSAE checked, lblHumidityType on, cboHumidityType on, lblAmbTemp on, txtAmbTemp on, lblAtmos on, txtAtmos on, lblRH on, txtRH on, lblCorrFactor on, txtCorrFactor on
type txtAtmos 74
type txtAtmos 116 -> txtAtmos=115, txtCorrFactor=0.838
type txtAmbTemp 61 -> txtAmbTemp=60, txtCorrFactor=0.996
type txtRH 101 -> txtRH=100, txtCorrFactor=1.119
type txtRH -1 -> txtRH=0, txtCorrFactor=0.894
choose cboHumidityType "Wet Bulb" -> cboHumidityType=Wet Bulb, lblRH=Wet &Bulb Temp ('C)
# A wet bulb is never warmer than the air.
type txtRH 61 -> txtRH=60, txtCorrFactor=1.119
type txtRH -31 -> txtRH=-30, txtCorrFactor=0.894
type txt3DSpec(1) 360 -> txt3DSpec(1)=359
type txt3DSpec(1) -1 -> txt3DSpec(1)=0
step updElevation(0) down
step updElevation(0) up -> txt3DSpec(1)=1
step updRotation(0) up -> txt3DSpec(0)=21
step updRotation(1) down -> txt3DSpec(2)=19
step updElevation(1) down -> txt3DSpec(3)=129
type txtFactor 0 -> item=Sample 1 1 10000 0.01, txtFactor=0.01
type txtFactor 101 -> item=Sample 1 1 10000 100, txtFactor=100
# Enter presses OK with the caret still in the field.
write txtComPort 33; key Enter -> -frmOptions, item=
)");
  EXPECT_EQ(window->Draft().settings.gstrSerialComPort, "1");
}

TEST_F(Options, CheckThePathsThatWereChanged) {
  Open();
  EXPECT_STORY(story, R"(
tab tabOptions General
type txtPath(0) /link/none.exe; click cmdOK; show focus -> focus txtPath(0), [24 ok], tabOptions=FM Link ECU, txtPath(0)=/link/none.exe, fraGeneralTab hidden, fraFMLinkTab shown
type txtPath(0) /link/notes.txt; click cmdOK -> [24 ok], txtPath(0)=/link/notes.txt
type txtPath(0) /link/L.EXE -> txtPath(0)=/link/L.EXE
type txtPath(1) /link; click cmdOK; show focus -> focus txtPath(1), [24 ok], txtPath(1)=/link
type txtPath(1) /link/C.exe -> txtPath(1)=/link/C.exe
type txtPath(2) /pictures/b.bmp; click cmdOK; show focus -> focus txtPath(2), [15 ok], tabOptions=File Locations, txtPath(2)=/pictures/b.bmp, fraFMLinkTab hidden, fraFilesTab shown
type txtPath(2) /pictures/a.bmp -> txtPath(2)=/pictures/a.bmp
type txtPath(3) C:\\MyFolder; click cmdOK; show focus -> focus txtPath(3), [36 ok], txtPath(3)=C:\\MyFolder\
type txtPath(3) /new -> txtPath(3)=/new
type txtPath(4) /tables/x.txt; click cmdOK; show focus -> focus txtPath(4), [15 ok], tabOptions=FM Link ECU, txtPath(3)=/new/, txtPath(4)=/tables/x.txt, fraFMLinkTab shown, fraFilesTab hidden
type txtPath(4) "" -> txtPath(4)=
type txtPath(5) /tables/x.txt; click cmdOK; show focus -> focus txtPath(5), [15 ok], txtPath(5)=/tables/x.txt
type txtPath(5) "" -> txtPath(5)=
type txtPath(6) /defs/none.txt; click cmdOK; show focus -> focus txtPath(6), [15 ok], tabOptions=File Locations, txtPath(6)=/defs/none.txt, fraFMLinkTab hidden, fraFilesTab shown
# The first of them.
type txtPath(5) /no; type txtPath(3) /nowhere; click cmdOK -> [36 ok], txtPath(3)=/nowhere/, txtPath(5)=/no
type txtPath(5) ""; type txtPath(3) /logs -> txtPath(3)=/logs, txtPath(5)=
type txtPath(6) /defs/mine.txt; click cmdOK -> [86 ok], -frmOptions, item=
anew -> +frmOptions, item=Sample 1 1 10000 1
answer folder /new; click cmdBrowse(3) -> [folder "Select Default Working Directory" /new], txtPath(3)=/new
answer file /pictures/a.bmp; click cmdBrowse(2) -> [open "Open" of Pictures (*.bmp;*.jpg;*.png) /pictures/a.bmp], txtPath(2)=/pictures/a.bmp
answer file /link/L.EXE; click cmdBrowse(0) -> [open "Open" of Programs (*.exe) /link/L.EXE], txtPath(0)=/link/L.EXE
)");
}

TEST_F(Options, LoadADefinitionIntoTheDraftAlone) {
  Open();
  story.PassOver("lvwDataItems");
  story.Fact("definition", [this] { return window->Draft().definition.strName; });
  window->Draft().catalogue.gcolUniversalDataItems.Item(3).blnDisplay = false;
  EXPECT_STORY(story, R"(
type txtPath(6) /defs/bad.txt; click cmdLoadGeneric -> [74 ok], txtPath(6)=/defs/bad.txt
type txtPath(6) /defs/mine.txt; click cmdLoadGeneric -> [86 ok], definition=Mine, txtPath(6)=/defs/mine.txt, cboFileType list=[FM Link Data Logs|FM Link MAP Files|Tec-2 Data Logs|Tec-3 Data Logs|LinkPlus Data Logs|UTEC CSV Data Logs|UTEC Fixed-Width Data Logs|Universal - Mine], cboLogFamily list=[Flyin' Miata Link Full|Flyin' Miata Link Data Log|Electromotive Tec-2 Data Log|Electromotive Tec-3 Data Log|Link Plus Data Log|TurboXS UTEC Data Log|Universal - Mine], cboLogFamily=Universal - Mine
row lvwDataItems Revs -> item=Revs 1 5 255 0.01, picDataColour colour=255, imgcboDataWidth=Fattest, picDataSample strokes[0] colour=255, picDataSample strokes[0] width=50, txtFactor=0.01
# Reset gives what the column says.
choose imgcboDataWidth Thinnest -> item=Revs 1 1 255 0.01, imgcboDataWidth=Thinnest, picDataSample strokes[0] width=10
click cmdReset -> item=Revs 1 5 255 0.01, imgcboDataWidth=Fattest, picDataSample strokes[0] width=50
choose imgcboDataWidth Thinner -> item=Revs 1 2 255 0.01, imgcboDataWidth=Thinner, picDataSample strokes[0] width=20
# It is not read again.
click cmdOK -> -frmOptions, item=
)");
  EXPECT_EQ(window->Draft().catalogue.gcolUniversalDataItems.Item(3).lngLineWidth, 2)
      << "what was chosen stays";
  EXPECT_TRUE(window->DefinitionChanged());
  EXPECT_EQ(window->Draft().settings.gstrGenericDefinitionFile, "/defs/mine.txt");
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
  Open();
  window->Draft().catalogue.gcolFixedDataItems.Item(5).lngLineStyle = 9;
  EXPECT_STORY(story, R"(
show cboLogFamily lvwDataItems[1] -> cboLogFamily list=[Flyin' Miata Link Full|Flyin' Miata Link Data Log|Electromotive Tec-2 Data Log|Electromotive Tec-3 Data Log|Link Plus Data Log|TurboXS UTEC Data Log|Universal - Hydra Nemesis 2.1 (MX-5 Miata)], cboLogFamily=Flyin' Miata Link Full, lvwDataItems[1]=[Sample|Sample No.], lvwDataItems[1] checked, lvwDataItems[1] selected
row lvwDataItems RPM -> item=RPM 1 3 4227072 0.01, lvwDataItems[1] unselected, lvwDataItems[44] selected, picDataColour colour=4227072, imgcboDataWidth=Medium, picDataSample strokes[0] colour=4227072, picDataSample strokes[0] width=30, txtFactor=0.01
choose imgcboDataStyle Dashed -> item=RPM 3 3 4227072 0.01, imgcboDataStyle=Dashed, picDataSample strokes[0] style=3
choose imgcboDataWidth Fattest -> item=RPM 3 5 4227072 0.01, imgcboDataWidth=Fattest, picDataSample strokes[0] width=50
answer colour 1193046; click cmdDataColour -> [colour "Data Item Colour" ok], item=RPM 3 5 1193046 0.01, picDataColour colour=1193046, picDataSample strokes[0] colour=1193046
type txtFactor 0.5 -> item=RPM 3 5 1193046 0.5, txtFactor=0.5
choose cboGraphColourScheme Black -> cboGraphColourScheme=Black, picDataSample colour=0
# A style that the list lacks stays until one is chosen.
row lvwDataItems MAP -> item=MAP 9 3 16776960 1, lvwDataItems[36] selected, lvwDataItems[44] unselected, picDataColour colour=16776960, imgcboDataWidth=Medium, picDataSample strokes[0] colour=16776960, picDataSample strokes[0] style=9, picDataSample strokes[0] width=30, txtFactor=1
row lvwDataItems RPM -> item=RPM 3 5 1193046 0.5, lvwDataItems[36] unselected, lvwDataItems[44] selected, picDataColour colour=1193046, imgcboDataWidth=Fattest, picDataSample strokes[0] colour=1193046, picDataSample strokes[0] style=3, picDataSample strokes[0] width=50, txtFactor=0.5
tick lvwDataItems RPM off -> item=RPM 3 5 1193046 0.5 hidden, lvwDataItems[44] unchecked
click cmdReset -> item=RPM 1 3 4227072 0.01, lvwDataItems[44] checked, picDataColour colour=4227072, imgcboDataStyle=Solid, imgcboDataWidth=Medium, picDataSample strokes[0] colour=4227072, picDataSample strokes[0] style=1, picDataSample strokes[0] width=30, txtFactor=0.01
)");
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
  EXPECT_STORY(story, R"(
click cmdUnCheckAll -> displayed=Sample! Secs! Power! RPM! Speed! Torque!
tick lvwDataItems MAP on -> displayed=Sample! Secs! MAP Power! RPM! Speed! Torque!
choose cboLogFamily #2; choose cboLogFamily #0; show lvwDataItems[36] lvwDataItems[5] -> lvwDataItems[36]=[MAP|Manifold Air Pressure], lvwDataItems[36] checked, lvwDataItems[36] unselected, lvwDataItems[5]=[A/F|A/F Ratio], lvwDataItems[5] unchecked, lvwDataItems[5] unselected
click cmdCheckAll -> displayed=53
)");
}

TEST_F(Options, LetTheFieldsOfThePowerGraphFollow) {
  Settings own;
  own.gdblGearSpeedConvFactor = 0.5;
  own.gintGearSpeedUnits = 1;
  Open(own);
  EXPECT_STORY(story, R"(
# What was kept stands.
show txtmsConvFactor -> txtmsConvFactor=0.5
anew -> txtmsConvFactor=0.44704
show cboHumidityType txtAmbTemp txtAtmos txtRH txtCorrFactor lblRH -> cboHumidityType off, cboHumidityType list=[Rel. Humidity|Wet Bulb], cboHumidityType=Rel. Humidity, txtAmbTemp off, txtAmbTemp=20, txtAtmos off, txtAtmos=75, txtRH off, txtRH=50, txtCorrFactor off, txtCorrFactor=1.389, lblRH off, lblRH=Relati&ve Humidity (%)
choose cboSpeedUnits KPH -> cboSpeedUnits=KPH, txtmsConvFactor=0.27778
choose cboSpeedUnits Other -> cboSpeedUnits=Other
choose cboSpeedUnits MPH -> cboSpeedUnits=MPH, txtmsConvFactor=0.44704
click chkPowerGraphGearSelection -> chkPowerGraphGearSelection unchecked, lblSpeedUnits off, cboSpeedUnits off, lblmsConvFactor off, txtmsConvFactor off
click chkSAE -> chkSAE checked, lblHumidityType on, cboHumidityType on, lblAmbTemp on, txtAmbTemp on, lblAtmos on, txtAtmos on, lblRH on, txtRH on, lblCorrFactor on, txtCorrFactor on
type txtAmbTemp 25 -> txtAmbTemp=25, txtCorrFactor=1.411
type txtAtmos 100 -> txtAtmos=100, txtCorrFactor=1.007
type txtRH 0 -> txtRH=0, txtCorrFactor=0.988
type txtAtmos 99 -> txtAtmos=99, txtCorrFactor=1.000
choose cboHumidityType "Wet Bulb" -> cboHumidityType=Wet Bulb, lblRH=Wet &Bulb Temp ('C)
)");
  EXPECT_EQ(window->txtRH.ToolTip(),
            "Default environmental wet bulb temperature during Power Runs");
}

TEST_F(Options, FindASettingByCaptionKeyOrToolTip) {
  std::string found = "\n";
  for (const char* text :
       {"colour scheme", "Show Point Sample", "retain", "Log EXE", "default benchmark", "working",
        "o2 input", "fuel graph rotation", "elevation in degrees", "uncheck", "verify", "wet bulb",
        "", "line style", "Generic Data"}) {
    frmOptions& options = Open();
    options.txtFind.Do({"type", {text}});
    found += std::string(text) + ": " + std::to_string(options.tabOptions.Selected()) + " " +
             (options.ActiveControl() ? options.ActiveControl()->FullName() : "") + "\n";
  }
  ExpectTold(found, R"(
colour scheme: 1 cboGraphColourScheme
Show Point Sample: 1 txtSampleWidth
retain: 2 chkRetainBIN
Log EXE: 2 txtPath(0)
default benchmark: 1 
working: 3 txtPath(3)
o2 input: 2 txtPath(5)
fuel graph rotation: 2 txt3DSpec(0)
elevation in degrees: 2 txt3DSpec(1)
uncheck: 4 cmdUnCheckAll
verify: 2 chkUploadDefs(1)
wet bulb: 1 
: 1 
line style: 4 imgcboDataStyle
Generic Data: 3 txtPath(6)
)");
  Open();
  EXPECT_STORY(story, R"(
# While the user types, the caret stays.
write txtFind "com port"; show focus -> focus txtFind, txtFind=com port, tabOptions=FM Link ECU, fraGeneralTab hidden, fraFMLinkTab shown
key Enter; show focus; key F1 -> focus txtComPort, help=OptionsFMLinkECUTab
tab tabOptions "File Locations"; key F1 -> help=OptionsFMLinkECUTab OptionsFileLocationsTab, tabOptions=File Locations, fraFMLinkTab hidden, fraFilesTab shown
tab tabOptions "Data Item Definitions"; key F1 -> help=OptionsFMLinkECUTab OptionsFileLocationsTab OptionsDataItemDefinitionsTab, tabOptions=Data Item Definitions, fraFilesTab hidden, fraDataItemsTab shown
tab tabOptions General; key F1 -> help=OptionsFMLinkECUTab OptionsFileLocationsTab OptionsDataItemDefinitionsTab OptionsGeneralTab, tabOptions=General, fraGeneralTab shown, fraDataItemsTab hidden
)");
}

}  // namespace
}  // namespace tarnview
