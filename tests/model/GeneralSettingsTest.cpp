#include <gtest/gtest.h>

#include "base/Text.h"
#include "model/GeneralSettings.h"
#include "model/IniKeys.h"

namespace tarnview {
namespace {

/// What one line of "General" leaves in a value.
template <class T>
T Read(const std::string& line, T Settings::*value) {
  return ReadSettings("[General]\r\n" + line + "\r\n").*value;
}

TEST(Settings, HoldWholeNumbersToTheirRules) {
  struct Row {
    const char* line;
    int Settings::*value;
    int wanted;
  };
  using S = Settings;
  const Row rows[] = {
      {"", &S::gintDefaultFileType, 1},
      {"Default File Type=0", &S::gintDefaultFileType, 1},
      {"Default File Type=6", &S::gintDefaultFileType, 6},
      {"Default File Type=99", &S::gintDefaultFileType, 8},
      {"", &S::gintZoomAmount, 2},
      {"Zoom Amount=7", &S::gintZoomAmount, 2},
      {"Zoom Amount=30", &S::gintZoomAmount, 30},
      {"Zoom Amount=500", &S::gintZoomAmount, 100},
      {"Zoom Amount=-1", &S::gintZoomAmount, 2},
      {"Default Chip Version=3", &S::gintDefaultChipVersion, 3},
      {"Default Chip Version=4", &S::gintDefaultChipVersion, 2},
      {"", &S::gintDefaultAtmosphericPressure, 75},
      {"Default Atmospheric Pressure=101.5", &S::gintDefaultAtmosphericPressure, 102},
      {"Default Atmospheric Pressure=200", &S::gintDefaultAtmosphericPressure, 115},
      {"Plot From Temperature=150", &S::gintPlotFromTemperature, 99},
      {"Plot From Temperature=-150", &S::gintPlotFromTemperature, -99},
      {"", &S::gintGraphYMax, 250},
      {"Graph Y Max=4", &S::gintGraphYMax, 10},
      {"Graph Y Max=x", &S::gintGraphYMax, 10},
      {"", &S::glngShowPointWidth, 100},
      {"Show Point Sample Graph Width=7000", &S::glngShowPointWidth, 1000},
      {"Initial Plot Width=400000", &S::glngInitialPlotWidth, 300000},
      {"", &S::gintGraphColourScheme, 1},
      {"Graph Colour Scheme=9", &S::gintGraphColourScheme, 3},
      {"", &S::gintGearSpeedUnits, 1},
      {"Auto Gear Selection Speed Units=3", &S::gintGearSpeedUnits, 3},
      {"Auto Gear Selection Speed Units=4", &S::gintGearSpeedUnits, 1},
      {"", &S::gintAmbientTemp, 20},
      {"Ambient Temp=-31", &S::gintAmbientTemp, -30},
      {"Ambient Temp=61", &S::gintAmbientTemp, 60},
      {"Humidity Type=1", &S::gintHumidityType, 1},
      {"Humidity Type=2", &S::gintHumidityType, 0},
      {"", &S::gintRelativeHumidity, 50},
      {"Relative Humidity=101", &S::gintRelativeHumidity, 100},
      {"Relative Humidity=-5", &S::gintRelativeHumidity, 0},
      {"Humidity Type=1", &S::gintRelativeHumidity, 15},
      {"Humidity Type=1\nAmbient Temp=10", &S::gintRelativeHumidity, 10},
      {"Humidity Type=1\nRelative Humidity=30", &S::gintRelativeHumidity, 20},
      {"Humidity Type=1\nRelative Humidity=-40", &S::gintRelativeHumidity, -30},
      {"SAE Type=1", &S::gintHumidityType, 0},
      {"SAE Type=2", &S::gintHumidityType, 1},
      {"SAE Type=2\nHumidity Type=0", &S::gintHumidityType, 0},
  };
  for (const Row& row : rows) EXPECT_EQ(Read(row.line, row.value), row.wanted) << row.line;
}

TEST(Settings, HoldFlagsToTheirRules) {
  struct Row {
    const char* key;
    bool Settings::*value;
    bool missing, y, n, other, zero;
  };
  using S = Settings;
  const Row rows[] = {
      // clang-format off
      {"Quick Graph", &S::gblnQuickGraph, true, false, false, false, false},
      {"Fix Graph Max", &S::gblnFixGraphMax, false, false, false, false, false},
      {"Silent Defaults", &S::gblnSilentDefaults, false, true, false, false, false},
      {"Show Checked Only", &S::gblnShowCheckedOnly, false, true, false, false, false},
      {"Scatter Graph Auto Draw", &S::gblnScatterGraphAutoDraw, false, true, false, false, false},
      {"Display Zone Influence", &S::gblnDisplayZoneInfluence, true, true, false, true, true},
      {"Auto Open Data Tags Window", &S::gblnAutoOpenDataTags, true, true, false, true, true},
      {"Display Sample Details in Scatter Graph", &S::gblnDisplaySampleInScatter, true, true, false, true, true},
      {"Retain Binary Files", &S::gblnRetainBinary, true, true, false, true, true},
      {"Auto Scatter Graph Sample Filter", &S::gblnAutoScatterFilter, true, true, false, true, true},
      {"Auto Gear Selection", &S::gblnAutoGearSelection, true, true, false, true, true},
      {"Auto File Names", &S::gblnAutoFileNames, false, true, false, false, false},
      {"SAE Correction", &S::gblnSAECorrection, false, true, false, false, false},
      // clang-format on
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.key);
    const auto read = [&](const char* text) {
      return Read(row.key + std::string("=") + text, row.value);
    };
    EXPECT_EQ(Read("", row.value), row.missing);
    EXPECT_EQ(read("Y"), row.y);
    EXPECT_EQ(read("N"), row.n);
    EXPECT_EQ(read("n"), row.other);
    EXPECT_EQ(read("0"), row.zero);
  }
  EXPECT_TRUE(Read("Fix Graph Max=7", &S::gblnFixGraphMax));
  EXPECT_FALSE(Read("Quick Graph =1\nQuick Graph=0", &S::gblnQuickGraph));
  EXPECT_TRUE(Read("SAE Type=1", &S::gblnSAECorrection));
  EXPECT_TRUE(Read("SAE Type=2", &S::gblnSAECorrection));
  EXPECT_FALSE(Read("SAE Type=3", &S::gblnSAECorrection));
  EXPECT_FALSE(Read("SAE Type=1\nSAE Correction=N", &S::gblnSAECorrection));
  EXPECT_EQ(Read("", &S::gblnUploadDefaults), (std::array{true, true, false, false}));
  EXPECT_EQ(Read("Upload Default 0=0\nUpload Default 3=1", &S::gblnUploadDefaults),
            (std::array{false, true, false, true}));
}

TEST(Settings, HoldTheOthersToTheirRules) {
  using S = Settings;
  EXPECT_EQ(Read("Default Engine Size=2.0", &S::gdblDefaultEngineSize), 1.6);
  EXPECT_EQ(Read("Default Engine Size= 1.8 ", &S::gdblDefaultEngineSize), 1.8);
  EXPECT_EQ(Read("Data Log Line Frequency=12.5", &S::gdblDataLogLineFrequency), 12.5);
  EXPECT_EQ(Read("Data Log Line Frequency=0", &S::gdblDataLogLineFrequency), 6.66);
  EXPECT_EQ(Read("Default Chip Date=2001-09-18", &S::gdatDefaultChipDate), MakeDate(2001, 9, 18));
  EXPECT_EQ(Read("Default Chip Date=soon", &S::gdatDefaultChipDate), MakeDate(2000, 1, 1));
  EXPECT_EQ(Read("Initial Directory= C:\\My Logs ", &S::gstrInitialDirectory), "C:\\My Logs");
  EXPECT_EQ(Read("Checked Data Items=5, 3,0,84,x,83", &S::gcolCheckedDataItems),
            (std::vector<int>{5, 3, 83}));
  EXPECT_EQ(Read("Checked Data Items=", &S::gcolCheckedDataItems), S().gcolCheckedDataItems);
  EXPECT_EQ(Read("", &S::gstrSerialComPort), "1");
  EXPECT_EQ(Read("Serial Com Port=0", &S::gstrSerialComPort), "1");
  EXPECT_EQ(Read("Serial Com Port=9", &S::gstrSerialComPort), "9");
  EXPECT_EQ(Read("Serial Com Port=10", &S::gstrSerialComPort), "1");
  EXPECT_EQ(Read("", &S::gdblGearSpeedConvFactor), 0.44704);
  EXPECT_EQ(Read("Auto Gear Selection Speed Conversion Factor=99.9", &S::gdblGearSpeedConvFactor),
            99.9);
  EXPECT_EQ(Read("Auto Gear Selection Speed Conversion Factor=0", &S::gdblGearSpeedConvFactor), 0);
  EXPECT_EQ(Read("Auto Gear Selection Speed Conversion Factor=100", &S::gdblGearSpeedConvFactor),
            0.44704);
  EXPECT_EQ(Read("Auto Gear Selection Speed Conversion Factor=-1", &S::gdblGearSpeedConvFactor),
            0.44704);
  EXPECT_TRUE(Read("First Run Indicator=Y", &S::firstRun));
  EXPECT_FALSE(Read("First Run Indicator=y", &S::firstRun));
  EXPECT_EQ(ReadSettings("[Other]\nZoom Amount=30\n").gintZoomAmount, 2);
}

TEST(Settings, ListRecentFilesLatestFirst) {
  std::string text = "[Recently Used Files]\n";
  for (const int n : {9, 8, 2, 0})
    text += "File " + std::to_string(n) + "=1|C:\\" + std::to_string(n) + ".txt\n";
  EXPECT_EQ(Join(ReadSettings(text + "File 3=\n").recentFiles, " "),
            "1|C:\\0.txt 1|C:\\2.txt 1|C:\\8.txt");
}

TEST(Settings, HoldTheAnglesToWholeDegrees) {
  const auto angles = ReadSettings(
                          "[3D Graph]\nInitial Fuel Rotation=360\nInitial Fuel "
                          "Elevation=-1\nInitial Ignition Rotation=12.5\n")
                          .angles;
  EXPECT_EQ(angles.lngFuelRotation, 359);
  EXPECT_EQ(angles.lngFuelElevation, 0);
  EXPECT_EQ(angles.lngIgnitionRotation, 12);
  EXPECT_EQ(angles.lngIgnitionElevation, 130);
}

TEST(Settings, PlaceOnlyWindowsThatHaveAState) {
  const auto windows =
      ReadSettings(
          "[General]\nWindow Left=5\nScatter Graph Window State=2\nScatter Graph Window Left=-40\n"
          "Scatter Graph Window Width=20000\nSpeed Graph Window State=9\n")
          .windows;
  EXPECT_FALSE(windows.main);
  EXPECT_FALSE(windows.powerGraph);
  ASSERT_TRUE(windows.scatterGraph && windows.speedGraph);
  EXPECT_EQ(windows.scatterGraph->lngWindowState, 2);
  EXPECT_EQ(windows.scatterGraph->lngLeft, -40);
  EXPECT_EQ(windows.scatterGraph->lngWidth, 20000);
  EXPECT_EQ(windows.scatterGraph->lngHeight, 4760);
  EXPECT_EQ(windows.speedGraph->lngWindowState, 2);
  EXPECT_EQ(windows.speedGraph->lngWidth, 8970);
}

TEST(Settings, TakeFromTheInstallFileWhatIsEmpty) {
  const IniTable install = ReadINIFileToArray(
      "[General]\nLog EXE=L.exe\nConversion EXE=C.exe\nDefault Working Directory=W\nChecked Data "
      "Items=3,5\n"
      "Initial Directory=no\n");
  const IniTable table =
      ReadINIFileToArray("[General]\nLog EXE=\nConversion EXE=mine\nInitial Directory=\n");
  Settings settings;
  ReadGeneralSettings(table, &install, settings);
  EXPECT_EQ(settings.gstrLogEXE, "L.exe");
  EXPECT_EQ(settings.gstrConversionEXE, "mine");
  EXPECT_EQ(settings.gstrDefaultWorkingDirectory, "W");
  EXPECT_EQ(settings.gcolCheckedDataItems, (std::vector<int>{3, 5}));
  EXPECT_EQ(settings.gstrInitialDirectory, "");
}

/// Key, default, limits, and where it is set.
std::string Listed(const std::vector<SettingRow>& rows) {
  std::string text;
  const Settings defaults;
  for (const SettingRow& row : rows)
    text += Join({row.key, row.text(defaults), row.limits, row.setIn.window, row.setIn.control},
                 " | ") +
            "\n";
  return text;
}

TEST(Settings, AreListedWithDefaultLimitsAndPlace) {
  EXPECT_EQ(Listed(AllSettings()), R"(Initial Directory |  |  |  | 
Default File Type | 1 | 1 to 8 | frmOptions/File Locations | cboFileType
Zoom Amount | 2 | one of 2, 3, 4, 5, 10, 20, 30, 40, 50, 100 | frmDataLogViewer | cboZoomAmount
Quick Graph | 1 | 1 or 0 | frmDataLogViewer | chkQuickGraph
Checked Data Items | 3,5,7,17,20,21,23,36 | data item numbers with commas | frmDataLogViewer | lvwSampleDetails
Log EXE |  |  | frmOptions/FM Link ECU | txtPath(0)
Conversion EXE |  |  | frmOptions/FM Link ECU | txtPath(1)
Alternative Background Picture |  |  | frmOptions/File Locations | txtPath(2)
Default Working Directory |  |  | frmOptions/File Locations | txtPath(3)
Aux Input Conversion File |  |  | frmOptions/FM Link ECU | txtPath(4)
O2 Input Conversion File |  |  | frmOptions/FM Link ECU | txtPath(5)
Generic Data Log Definition File |  |  | frmOptions/File Locations | txtPath(6)
Last Converted Binary File |  |  | frmConvertBIN | txtPath(0)
Serial Com Port | 1 | 1 to 9 | frmOptions/FM Link ECU | txtComPort
Default Engine Size | 1.6 | 1.6 or 1.8 | frmOptions/FM Link ECU | cboChipType
Default Chip Date | 2000-01-01 | yyyy-mm-dd | frmOptions/FM Link ECU | txtChipDate
Default Chip Version | 2 | 1 to 3 | frmOptions/FM Link ECU | cboChipType
Default Atmospheric Pressure | 75 | 75 to 115 | frmOptions/General | txtAtmos
Silent Defaults | N | Y or N | frmOptions/FM Link ECU | chkSilentDefaults
Default Benchmark |  |  | frmZoneData | cboBenchmark
Plot From Temperature | 0 | -99 to 99 | frmOptions/General | txtPlotFromTemp
Display Zone Influence | Y | Y or N | frmDataLogViewer | mnuViewZoneInfl
Display Sample Details in Scatter Graph | Y | Y or N | frmOptions/General | chkSampleScatter
Upload Default 0 | 1 | 1 or 0 | frmOptions/FM Link ECU | chkUploadDefs(0)
Upload Default 1 | 1 | 1 or 0 | frmOptions/FM Link ECU | chkUploadDefs(1)
Upload Default 2 | 0 | 1 or 0 | frmOptions/FM Link ECU | chkUploadDefs(2)
Upload Default 3 | 0 | 1 or 0 | frmOptions/FM Link ECU | chkUploadDefs(3)
Retain Binary Files | Y | Y or N | frmOptions/FM Link ECU | chkRetainBIN
Auto Open Data Tags Window | Y | Y or N | frmOptions/FM Link ECU | chkAutoTag
Fix Graph Max | 0 | 1 or 0 | frmDataLogViewer | chkFixY
Graph Y Max | 250 | 10 to 1000 | frmDataLogViewer | txtYMax
Show Checked Only | N | Y or N | frmDataLogViewer | chkShowCheckedOnly
Auto File Names | N | Y or N | frmOptions/General | chkAutoFileNames
Scatter Graph Auto Draw | N | Y or N | frmOptions/General | chkScatterAutoDraw
Auto Scatter Graph Sample Filter | Y | Y or N | frmOptions/General | chkAutoScatterFilter
Show Point Sample Graph Width | 100 | 50 to 1000 | frmOptions/General | txtSampleWidth
Data Log Line Frequency | 6.66 | above 0 | frmOptions/General | txtDefFreq
Auto Gear Selection | Y | Y or N | frmOptions/General | chkPowerGraphGearSelection
Auto Gear Selection Speed Units | 1 | 1 to 3 | frmOptions/General | cboSpeedUnits
Auto Gear Selection Speed Conversion Factor | 0.44704 | from 0 to below 100 | frmOptions/General | txtmsConvFactor
Initial Plot Width | 0 | 0 to 300000 | frmOptions/General | txtInitialPlotWidth
Ambient Temp | 20 | -30 to 60 | frmOptions/General | txtAmbTemp
Humidity Type | 0 | 0 or 1 | frmOptions/General | cboHumidityType
Relative Humidity | 50 | 0 to 100; a wet bulb temperature -30 to 60 and not above Ambient Temp | frmOptions/General | txtRH
SAE Correction | N | Y or N | frmOptions/General | chkSAE
Graph Colour Scheme | 1 | 1 to 3 | frmOptions/General | cboGraphColourScheme
Initial Fuel Rotation | 20 | 0 to 359 | frmOptions/FM Link ECU | txt3DSpec(0)
Initial Fuel Elevation | 240 | 0 to 359 | frmOptions/FM Link ECU | txt3DSpec(1)
Initial Ignition Rotation | 20 | 0 to 359 | frmOptions/FM Link ECU | txt3DSpec(2)
Initial Ignition Elevation | 130 | 0 to 359 | frmOptions/FM Link ECU | txt3DSpec(3)
Draw After Opening | N | Y or N | frmOptions/General | chkDrawAfterOpening
Main Window Dividers |  |  |  | 
Scatter Graph Dividers |  |  |  | 
Lines A Second | 10 | 0.01 to 100000 | frmLineFrequency | txtLineFrequency
Own Item Display |  |  |  | 
)");
}

TEST(Settings, AreTakenOneByOneAsTheReaderTakesThem) {
  for (const SettingRow& row : AllSettings()) {
    SCOPED_TRACE(row.key);
    const std::string line = std::string("[") + row.section + "]\n" + row.key + "=8\n";
    Settings taken;
    row.take(taken, "8");
    EXPECT_EQ(row.text(taken), row.text(ReadSettings(line)));
  }
}

TEST(Settings, HoldTheHumidityToWhatItsTypeMeans) {
  Settings settings;
  settings.gintAmbientTemp = 31;
  EXPECT_EQ(HumidityLimits(settings), (Limits{0, 100}));
  settings.gintHumidityType = 1;
  EXPECT_EQ(HumidityLimits(settings), (Limits{-30, 31}));
}

TEST(Settings, WriteTheShortestDecimal) {
  const std::pair<double, const char*> kRows[] = {{0.1, "0.1"},
                                                  {1.8, "1.8"},
                                                  {-2.5, "-2.5"},
                                                  {1e-5, "0.00001"},
                                                  {1e20, "100000000000000000000"},
                                                  {0.1 + 0.2, "0.30000000000000004"},
                                                  {-0.0, "0"}};
  for (const auto& [value, text] : kRows) EXPECT_EQ(ShortestText(value), text);
}

}  // namespace
}  // namespace tarnview
