#include <algorithm>

#include "model/GeneralSettings.h"
#include "model/IniKeys.h"
#include "support/Table.h"

namespace tarnview {
namespace {

const SettingRow& RowOf(const std::vector<SettingRow>& rows, const std::string& key) {
  return *std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return key == row.key; });
}

/// What the key becomes, as the file holds it, by lines of its section.
std::string Read(const std::string& key, const std::string& lines) {
  static const std::vector<SettingRow> rows = AllSettings();
  const SettingRow& row = RowOf(rows, key);
  return row.text(ReadSettings(std::string("[") + row.section + "]\n" + lines + "\n"));
}

/// Key, default, limits, where it is set, and what some texts become that may stand in the file.
/// One that is taken alone is taken as the reader takes it.
std::string Listed(const SettingRow& row) {
  std::string taken;
  for (const char* text : {"Y", "N", "n", "0", "1", "2.6", "7", "30", "-1", "-999", "99999", "x"}) {
    const std::string became = Read(row.key, std::string(row.key) + "=" + text);
    taken += (taken.empty() ? "" : " ") + (became == text ? "=" : OrElse(became, "''"));
  }
  Settings settings;
  row.take(settings, "7");
  EXPECT_EQ(row.text(settings), Read(row.key, std::string(row.key) + "=7")) << row.key;
  return Join({row.key, row.text({}), row.limits, row.setIn.window, row.setIn.control, taken},
              " | ");
}

/// Behind each row what becomes of Y, N, n, 0, 1, 2.6, 7, 30, -1, -999, 99999 and x; "=": itself.
TEST(Settings, AreListedAndHeldToTheirRules) {
  std::string told = "\n";
  for (const SettingRow& row : AllSettings()) told += Listed(row) + "\n";
  ExpectTold(told, R"(
Initial Directory |  |  |  |  | = = = = = = = = = = = =
Default File Type | 1 | 1 to 8 | frmOptions/File Locations | cboFileType | 1 1 1 1 = 3 = 8 1 1 8 1
Zoom Amount | 2 | one of 2, 3, 4, 5, 10, 20, 30, 40, 50, 100 | frmDataLogViewer | cboZoomAmount | 2 2 2 2 2 3 2 = 2 2 100 2
Quick Graph | 1 | 1 or 0 | frmDataLogViewer | chkQuickGraph | 0 0 0 = = 1 1 1 1 1 1 0
Checked Data Items | 3,5,7,17,20,21,23,36 | data item numbers with commas | frmDataLogViewer | lvwSampleDetails | 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 = 3 = = 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36
Log EXE |  |  | frmOptions/FM Link ECU | txtPath(0) | = = = = = = = = = = = =
Conversion EXE |  |  | frmOptions/FM Link ECU | txtPath(1) | = = = = = = = = = = = =
Alternative Background Picture |  |  | frmOptions/File Locations | txtPath(2) | = = = = = = = = = = = =
Default Working Directory |  |  | frmOptions/File Locations | txtPath(3) | = = = = = = = = = = = =
Aux Input Conversion File |  |  | frmOptions/FM Link ECU | txtPath(4) | = = = = = = = = = = = =
O2 Input Conversion File |  |  | frmOptions/FM Link ECU | txtPath(5) | = = = = = = = = = = = =
Generic Data Log Definition File |  |  | frmOptions/File Locations | txtPath(6) | = = = = = = = = = = = =
Last Converted Binary File |  |  | frmConvertBIN | txtPath(0) | = = = = = = = = = = = =
Serial Com Port | 1 | 1 to 9 | frmOptions/FM Link ECU | txtComPort | 1 1 1 1 = 3 = 1 1 1 1 1
Default Engine Size | 1.6 | 1.6 or 1.8 | frmOptions/FM Link ECU | cboChipType | 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6
Default Chip Date | 2000-01-01 | yyyy-mm-dd | frmOptions/FM Link ECU | txtChipDate | 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01
Default Chip Version | 2 | 1 to 3 | frmOptions/FM Link ECU | cboChipType | 2 2 2 2 = 3 2 2 2 2 2 2
Default Atmospheric Pressure | 75 | 75 to 115 | frmOptions/General | txtAtmos | 75 75 75 75 75 75 75 75 75 75 115 75
Silent Defaults | N | Y or N | frmOptions/FM Link ECU | chkSilentDefaults | = = N N N N N N N N N N
Default Benchmark |  |  | frmZoneData | cboBenchmark | = = = = = = = = = = = =
Plot From Temperature | 0 | -99 to 99 | frmOptions/General | txtPlotFromTemp | 0 0 0 = = 3 = = = -99 99 0
Display Zone Influence | Y | Y or N | frmDataLogViewer | mnuViewZoneInfl | = = Y Y Y Y Y Y Y Y Y Y
Display Sample Details in Scatter Graph | Y | Y or N | frmOptions/General | chkSampleScatter | = = Y Y Y Y Y Y Y Y Y Y
Upload Default 0 | 1 | 1 or 0 | frmOptions/FM Link ECU | chkUploadDefs(0) | 0 0 0 = = 1 1 1 1 1 1 0
Upload Default 1 | 1 | 1 or 0 | frmOptions/FM Link ECU | chkUploadDefs(1) | 0 0 0 = = 1 1 1 1 1 1 0
Upload Default 2 | 0 | 1 or 0 | frmOptions/FM Link ECU | chkUploadDefs(2) | 0 0 0 = = 1 1 1 1 1 1 0
Upload Default 3 | 0 | 1 or 0 | frmOptions/FM Link ECU | chkUploadDefs(3) | 0 0 0 = = 1 1 1 1 1 1 0
Retain Binary Files | Y | Y or N | frmOptions/FM Link ECU | chkRetainBIN | = = Y Y Y Y Y Y Y Y Y Y
Auto Open Data Tags Window | Y | Y or N | frmOptions/FM Link ECU | chkAutoTag | = = Y Y Y Y Y Y Y Y Y Y
Fix Graph Max | 0 | 1 or 0 | frmDataLogViewer | chkFixY | 0 0 0 = = 1 1 1 1 1 1 0
Graph Y Max | 250 | 10 to 1000 | frmDataLogViewer | txtYMax | 10 10 10 10 10 10 10 = 10 10 1000 10
Show Checked Only | N | Y or N | frmDataLogViewer | chkShowCheckedOnly | = = N N N N N N N N N N
Auto File Names | N | Y or N | frmOptions/General | chkAutoFileNames | = = N N N N N N N N N N
Scatter Graph Auto Draw | N | Y or N | frmOptions/General | chkScatterAutoDraw | = = N N N N N N N N N N
Auto Scatter Graph Sample Filter | Y | Y or N | frmOptions/General | chkAutoScatterFilter | = = Y Y Y Y Y Y Y Y Y Y
Show Point Sample Graph Width | 100 | 50 to 1000 | frmOptions/General | txtSampleWidth | 50 50 50 50 50 50 50 50 50 50 1000 50
Data Log Line Frequency | 6.66 | above 0 | frmOptions/General | txtDefFreq | 6.66 6.66 6.66 6.66 = = = = 6.66 6.66 = 6.66
Auto Gear Selection | Y | Y or N | frmOptions/General | chkPowerGraphGearSelection | = = Y Y Y Y Y Y Y Y Y Y
Auto Gear Selection Speed Units | 1 | 1 to 3 | frmOptions/General | cboSpeedUnits | 1 1 1 1 = 3 1 1 1 1 1 1
Auto Gear Selection Speed Conversion Factor | 0.44704 | from 0 to below 100 | frmOptions/General | txtmsConvFactor | 0 0 0 = = = = = 0.44704 0.44704 0.44704 0
Initial Plot Width | 0 | 0 to 300000 | frmOptions/General | txtInitialPlotWidth | 0 0 0 = = 3 = = 0 0 = 0
Ambient Temp | 20 | -30 to 60 | frmOptions/General | txtAmbTemp | 0 0 0 = = 3 = = = -30 60 0
Humidity Type | 0 | 0 or 1 | frmOptions/General | cboHumidityType | 0 0 0 = = 0 0 0 0 0 0 0
Relative Humidity | 50 | 0 to 100; a wet bulb temperature -30 to 60 and not above Ambient Temp | frmOptions/General | txtRH | 0 0 0 = = 3 = = 0 0 100 0
SAE Correction | N | Y or N | frmOptions/General | chkSAE | = = N N N N N N N N N N
Graph Colour Scheme | 1 | 1 to 3 | frmOptions/General | cboGraphColourScheme | 1 1 1 1 = 3 3 3 1 1 3 1
Initial Fuel Rotation | 20 | 0 to 359 | frmOptions/FM Link ECU | txt3DSpec(0) | 0 0 0 = = 3 = = 0 0 359 0
Initial Fuel Elevation | 240 | 0 to 359 | frmOptions/FM Link ECU | txt3DSpec(1) | 0 0 0 = = 3 = = 0 0 359 0
Initial Ignition Rotation | 20 | 0 to 359 | frmOptions/FM Link ECU | txt3DSpec(2) | 0 0 0 = = 3 = = 0 0 359 0
Initial Ignition Elevation | 130 | 0 to 359 | frmOptions/FM Link ECU | txt3DSpec(3) | 0 0 0 = = 3 = = 0 0 359 0
Draw After Opening | N | Y or N | frmOptions/General | chkDrawAfterOpening | = = N N N N N N N N N N
Main Window Dividers |  |  |  |  | = = = = = = = = = = = =
Scatter Graph Dividers |  |  |  |  | = = = = = = = = = = = =
Lines A Second | 10 | 0.01 to 100000 | frmLineFrequency | txtLineFrequency | 0.01 0.01 0.01 0.01 = = = = 0.01 0.01 = 0.01
Own Item Display |  |  |  |  | = = = = = = = = = = = =
)");
}

TEST(Settings, HoldTogetherAsTheirKeysMean) {
  // key, lines of the file
  ExpectTable(
      [](const TableRow& row) {
        std::string lines;
        for (std::size_t n = 1; n < row.Count(); ++n) lines += row.Text(n) + "\n";
        return Read(row.Text(0), lines);
      },
      R"(
Relative Humidity, Humidity Type=1 -> 15 | Relative Humidity, Humidity Type=1, Ambient Temp=10 -> 10 | Relative Humidity, Humidity Type=1, Relative Humidity=30 -> 20
Relative Humidity, Humidity Type=1, Relative Humidity=-40 -> -30 | Relative Humidity, Relative Humidity=101 -> 100 | Relative Humidity, Relative Humidity=-5 -> 0
Humidity Type, SAE Type=1 -> 0 | Humidity Type, SAE Type=2 -> 1 | Humidity Type, SAE Type=2, Humidity Type=0 -> 0
SAE Correction, SAE Type=1 -> Y | SAE Correction, SAE Type=2 -> Y | SAE Correction, SAE Type=3 -> N | SAE Correction, SAE Type=1, SAE Correction=N -> N
Quick Graph, Quick Graph =1, Quick Graph=0 -> 0 | Zoom Amount, [Other], Zoom Amount=30 -> 2 | Zoom Amount, Zoom Amount=31 -> 2
Default Engine Size, Default Engine Size=2.0 -> 1.6 | Default Engine Size, Default Engine Size= 1.8  -> 1.8 | Data Log Line Frequency, Data Log Line Frequency=12.5 -> 12.5
Default Chip Date, Default Chip Date=2001-09-18 -> 2001-09-18 | Default Chip Date, Default Chip Date=soon -> 2000-01-01 | Initial Directory, Initial Directory= C:\My Logs  -> C:\My Logs
Checked Data Items, Checked Data Items=5,3,0,84,x,83 -> 5,3,83 | Checked Data Items, Checked Data Items= -> 3,5,7,17,20,21,23,36
Serial Com Port, Serial Com Port=9 -> 9 | Serial Com Port, Serial Com Port=10 -> 1
Auto Gear Selection Speed Conversion Factor, Auto Gear Selection Speed Conversion Factor=99.9 -> 99.9
Auto Gear Selection Speed Conversion Factor, Auto Gear Selection Speed Conversion Factor=100 -> 0.44704
Default Atmospheric Pressure, Default Atmospheric Pressure=101.5 -> 102 | Default Atmospheric Pressure, Default Atmospheric Pressure=200 -> 115
Default File Type, Default File Type=6 -> 6 | Graph Y Max, Graph Y Max=1000 -> 1000
)");
  EXPECT_TRUE(ReadSettings("[General]\nFirst Run Indicator=Y").firstRun);
  EXPECT_FALSE(ReadSettings("[General]\nFirst Run Indicator=y").firstRun);
}

TEST(Settings, ListRecentFilesLatestFirst) {
  std::string text = "[Recently Used Files]\n";
  for (const int n : {9, 8, 2, 0})
    text += "File " + std::to_string(n) + "=1|C:\\" + std::to_string(n) + ".txt\n";
  EXPECT_EQ(Join(ReadSettings(text + "File 3=\n").recentFiles, " "),
            "1|C:\\0.txt 1|C:\\2.txt 1|C:\\8.txt");
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

TEST(Settings, BeyondTheOthersAreWrittenWhereTheyDiffer) {
  BeyondSettings beyond;
  beyond.linesASecond = 25;
  IniWriter file;
  WriteBeyondSettings({}, file);
  WriteBeyondSettings(beyond, file);
  EXPECT_EQ(file.Text(), "Lines A Second=25\r\n");
}

TEST(Settings, WriteTheShortestDecimal) {
  ExpectTable(
      [](const TableRow& row) { return ShortestText(row.Number(0)); },
      R"(0.1 -> 0.1 | 1.8 -> 1.8 | -2.5 -> -2.5 | 1e-5 -> 0.00001 | 1e20 -> 100000000000000000000 | 0.30000000000000004 -> 0.30000000000000004 | -0.0 -> 0)");
}

}  // namespace
}  // namespace tarnview
