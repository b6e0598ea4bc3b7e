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
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.key);
    const auto read = [&](const char* text) { return Read(row.key + std::string("=") + text, row.value); };
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
  EXPECT_EQ(Read("Checked Data Items=5, 3,0,84,x,83", &S::gcolCheckedDataItems), (std::vector<int>{5, 3, 83}));
  EXPECT_EQ(Read("Checked Data Items=", &S::gcolCheckedDataItems), S().gcolCheckedDataItems);
  EXPECT_EQ(Read("", &S::gstrSerialComPort), "1");
  EXPECT_EQ(Read("Serial Com Port=0", &S::gstrSerialComPort), "1");
  EXPECT_EQ(Read("Serial Com Port=9", &S::gstrSerialComPort), "9");
  EXPECT_EQ(Read("Serial Com Port=10", &S::gstrSerialComPort), "1");
  EXPECT_EQ(Read("", &S::gdblGearSpeedConvFactor), 0.44704);
  EXPECT_EQ(Read("Auto Gear Selection Speed Conversion Factor=99.9", &S::gdblGearSpeedConvFactor), 99.9);
  EXPECT_EQ(Read("Auto Gear Selection Speed Conversion Factor=0", &S::gdblGearSpeedConvFactor), 0);
  EXPECT_EQ(Read("Auto Gear Selection Speed Conversion Factor=100", &S::gdblGearSpeedConvFactor), 0.44704);
  EXPECT_EQ(Read("Auto Gear Selection Speed Conversion Factor=-1", &S::gdblGearSpeedConvFactor), 0.44704);
  EXPECT_TRUE(Read("First Run Indicator=Y", &S::firstRun));
  EXPECT_FALSE(Read("First Run Indicator=y", &S::firstRun));
  EXPECT_EQ(ReadSettings("[Other]\nZoom Amount=30\n").gintZoomAmount, 2);
}

TEST(Settings, ListRecentFilesLatestFirst) {
  std::string text = "[Recently Used Files]\n";
  for (const int n : {9, 8, 2, 0}) text += "File " + std::to_string(n) + "=1|C:\\" + std::to_string(n) + ".txt\n";
  EXPECT_EQ(Join(ReadSettings(text + "File 3=\n").recentFiles, " "), "1|C:\\0.txt 1|C:\\2.txt 1|C:\\8.txt");
}

TEST(Settings, HoldTheAnglesToWholeDegrees) {
  const auto angles =
      ReadSettings("[3D Graph]\nInitial Fuel Rotation=360\nInitial Fuel Elevation=-1\nInitial Ignition Rotation=12.5\n")
          .angles;
  EXPECT_EQ(angles.lngFuelRotation, 359);
  EXPECT_EQ(angles.lngFuelElevation, 0);
  EXPECT_EQ(angles.lngIgnitionRotation, 12);
  EXPECT_EQ(angles.lngIgnitionElevation, 130);
}

TEST(Settings, PlaceOnlyWindowsThatHaveAState) {
  const auto windows = ReadSettings(
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
      "[General]\nLog EXE=L.exe\nConversion EXE=C.exe\nDefault Working Directory=W\nChecked Data Items=3,5\n"
      "Initial Directory=no\n");
  const IniTable table = ReadINIFileToArray("[General]\nLog EXE=\nConversion EXE=mine\nInitial Directory=\n");
  Settings settings;
  ReadGeneralSettings(table, &install, settings);
  EXPECT_EQ(settings.gstrLogEXE, "L.exe");
  EXPECT_EQ(settings.gstrConversionEXE, "mine");
  EXPECT_EQ(settings.gstrDefaultWorkingDirectory, "W");
  EXPECT_EQ(settings.gcolCheckedDataItems, (std::vector<int>{3, 5}));
  EXPECT_EQ(settings.gstrInitialDirectory, "");
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
