#include <algorithm>
#include <map>

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

/// Limits, default, and what Y, N, n, 0, 1, 2.6, 7, 30, -1, -999, 99999 and x become ("=": itself)
/// that may stand in the file. One that is taken alone is taken as the reader takes it.
std::string RuleOf(const SettingRow& row) {
  std::string taken;
  for (const char* text : {"Y", "N", "n", "0", "1", "2.6", "7", "30", "-1", "-999", "99999", "x"}) {
    const std::string became = Read(row.key, std::string(row.key) + "=" + text);
    taken += " " + (became == text ? "=" : OrElse(became, "''"));
  }
  Settings settings;
  row.take(settings, "7");
  EXPECT_EQ(row.text(settings), Read(row.key, std::string(row.key) + "=7")) << row.key;
  return Join({row.limits, row.text({}), taken.substr(1)}, " | ");
}

/// Behind each rule the settings that keep to it, by their places in the list, and the window and
/// control that set them.
TEST(Settings, AreListedAndHeldToTheirRules) {
  std::map<std::string, std::string> settingsOf;
  int place = 0;
  for (const SettingRow& row : AllSettings())
    settingsOf[RuleOf(row)] += std::to_string(++place) + " " + row.key + " (" + row.setIn.window +
                               " " + row.setIn.control + "), ";
  std::string told = "\n";
  for (const auto& [rule, settings] : settingsOf) told += rule + ": " + settings + "\n";
  ExpectTold(told, R"(
 |  | = = = = = = = = = = = =: 1 Initial Directory ( ), 6 Log EXE (frmOptions/FM Link ECU txtPath(0)), 7 Conversion EXE (frmOptions/FM Link ECU txtPath(1)), 8 Alternative Background Picture (frmOptions/File Locations txtPath(2)), 9 Default Working Directory (frmOptions/File Locations txtPath(3)), 10 Aux Input Conversion File (frmOptions/FM Link ECU txtPath(4)), 11 O2 Input Conversion File (frmOptions/FM Link ECU txtPath(5)), 12 Generic Data Log Definition File (frmOptions/File Locations txtPath(6)), 13 Last Converted Binary File (frmConvertBIN txtPath(0)), 20 Default Benchmark (frmZoneData cboBenchmark), 52 Main Window Dividers ( ), 53 Scatter Graph Dividers ( ), 55 Own Item Display ( ), 
-30 to 60 | 20 | 0 0 0 = = 3 = = = -30 60 0: 42 Ambient Temp (frmOptions/General txtAmbTemp), 
-99 to 99 | 0 | 0 0 0 = = 3 = = = -99 99 0: 21 Plot From Temperature (frmOptions/General txtPlotFromTemp), 
0 or 1 | 0 | 0 0 0 = = 0 0 0 0 0 0 0: 43 Humidity Type (frmOptions/General cboHumidityType), 
0 to 100; a wet bulb temperature -30 to 60 and not above Ambient Temp | 50 | 0 0 0 = = 3 = = 0 0 100 0: 44 Relative Humidity (frmOptions/General txtRH), 
0 to 300000 | 0 | 0 0 0 = = 3 = = 0 0 = 0: 41 Initial Plot Width (frmOptions/General txtInitialPlotWidth), 
0 to 359 | 130 | 0 0 0 = = 3 = = 0 0 359 0: 50 Initial Ignition Elevation (frmOptions/FM Link ECU txt3DSpec(3)), 
0 to 359 | 20 | 0 0 0 = = 3 = = 0 0 359 0: 47 Initial Fuel Rotation (frmOptions/FM Link ECU txt3DSpec(0)), 49 Initial Ignition Rotation (frmOptions/FM Link ECU txt3DSpec(2)), 
0 to 359 | 240 | 0 0 0 = = 3 = = 0 0 359 0: 48 Initial Fuel Elevation (frmOptions/FM Link ECU txt3DSpec(1)), 
0.01 to 100000 | 10 | 0.01 0.01 0.01 0.01 = = = = 0.01 0.01 = 0.01: 54 Lines A Second (frmLineFrequency txtLineFrequency), 
1 or 0 | 0 | 0 0 0 = = 1 1 1 1 1 1 0: 26 Upload Default 2 (frmOptions/FM Link ECU chkUploadDefs(2)), 27 Upload Default 3 (frmOptions/FM Link ECU chkUploadDefs(3)), 30 Fix Graph Max (frmDataLogViewer chkFixY), 
1 or 0 | 1 | 0 0 0 = = 1 1 1 1 1 1 0: 4 Quick Graph (frmDataLogViewer chkQuickGraph), 24 Upload Default 0 (frmOptions/FM Link ECU chkUploadDefs(0)), 25 Upload Default 1 (frmOptions/FM Link ECU chkUploadDefs(1)), 
1 to 3 | 1 | 1 1 1 1 = 3 1 1 1 1 1 1: 39 Auto Gear Selection Speed Units (frmOptions/General cboSpeedUnits), 
1 to 3 | 1 | 1 1 1 1 = 3 3 3 1 1 3 1: 46 Graph Colour Scheme (frmOptions/General cboGraphColourScheme), 
1 to 3 | 2 | 2 2 2 2 = 3 2 2 2 2 2 2: 17 Default Chip Version (frmOptions/FM Link ECU cboChipType), 
1 to 8 | 1 | 1 1 1 1 = 3 = 8 1 1 8 1: 2 Default File Type (frmOptions/File Locations cboFileType), 
1 to 9 | 1 | 1 1 1 1 = 3 = 1 1 1 1 1: 14 Serial Com Port (frmOptions/FM Link ECU txtComPort), 
1.6 or 1.8 | 1.6 | 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6 1.6: 15 Default Engine Size (frmOptions/FM Link ECU cboChipType), 
10 to 1000 | 250 | 10 10 10 10 10 10 10 = 10 10 1000 10: 31 Graph Y Max (frmDataLogViewer txtYMax), 
50 to 1000 | 100 | 50 50 50 50 50 50 50 50 50 50 1000 50: 36 Show Point Sample Graph Width (frmOptions/General txtSampleWidth), 
75 to 115 | 75 | 75 75 75 75 75 75 75 75 75 75 115 75: 18 Default Atmospheric Pressure (frmOptions/General txtAtmos), 
Y or N | N | = = N N N N N N N N N N: 19 Silent Defaults (frmOptions/FM Link ECU chkSilentDefaults), 32 Show Checked Only (frmDataLogViewer chkShowCheckedOnly), 33 Auto File Names (frmOptions/General chkAutoFileNames), 34 Scatter Graph Auto Draw (frmOptions/General chkScatterAutoDraw), 45 SAE Correction (frmOptions/General chkSAE), 51 Draw After Opening (frmOptions/General chkDrawAfterOpening), 
Y or N | Y | = = Y Y Y Y Y Y Y Y Y Y: 22 Display Zone Influence (frmDataLogViewer mnuViewZoneInfl), 23 Display Sample Details in Scatter Graph (frmOptions/General chkSampleScatter), 28 Retain Binary Files (frmOptions/FM Link ECU chkRetainBIN), 29 Auto Open Data Tags Window (frmOptions/FM Link ECU chkAutoTag), 35 Auto Scatter Graph Sample Filter (frmOptions/General chkAutoScatterFilter), 38 Auto Gear Selection (frmOptions/General chkPowerGraphGearSelection), 
above 0 | 6.66 | 6.66 6.66 6.66 6.66 = = = = 6.66 6.66 = 6.66: 37 Data Log Line Frequency (frmOptions/General txtDefFreq), 
data item numbers with commas | 3,5,7,17,20,21,23,36 | 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 = 3 = = 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36 3,5,7,17,20,21,23,36: 5 Checked Data Items (frmDataLogViewer lvwSampleDetails), 
from 0 to below 100 | 0.44704 | 0 0 0 = = = = = 0.44704 0.44704 0.44704 0: 40 Auto Gear Selection Speed Conversion Factor (frmOptions/General txtmsConvFactor), 
one of 2, 3, 4, 5, 10, 20, 30, 40, 50, 100 | 2 | 2 2 2 2 2 3 2 = 2 2 100 2: 3 Zoom Amount (frmDataLogViewer cboZoomAmount), 
yyyy-mm-dd | 2000-01-01 | 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01 2000-01-01: 16 Default Chip Date (frmOptions/FM Link ECU txtChipDate), 
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
}

TEST(Settings, HoldMoreThanTheList) {
  // lines of the file; recent files, the latest first, and the windows that have a state
  ExpectTable(
      [](const TableRow& row) {
        const Settings settings = ReadSettings(row.Lines());
        std::string told = Join(settings.recentFiles, " ") + (settings.firstRun ? " first" : "");
        const WindowPlacements& all = settings.windows;
        for (const auto* window :
             {&all.main, &all.scatterGraph, &all.powerGraph, &all.speedGraph, &all.maintenance})
          if (*window)
            told += " " + std::to_string((*window)->lngWindowState) + " at " +
                    std::to_string((*window)->lngLeft) + " " + std::to_string((*window)->lngWidth) +
                    " x " + std::to_string((*window)->lngHeight);
        return told;
      },
      R"(
[General]; First Run Indicator=Y ->  first | [General]; First Run Indicator=y -> 
[Recently Used Files]; File 9=1|9.txt; File 8=1|8.txt; File 2=1|2.txt; File 0=1|0.txt; File 3= -> 1|0.txt 1|2.txt 1|8.txt
[General]; Window Left=5; Scatter Graph Window State=2; Scatter Graph Window Left=-40; Scatter Graph Window Width=20000; Speed Graph Window State=9 ->  2 at -40 20000 x 4760 2 at 0 8970 x 4760
[General]; Window State=0; Power Graph Window State=1; Maintenance Form Window State=1 ->  0 at 0 6640 x 6370 1 at 0 12390 x 7845 1 at 0 4185 x 4425
)");
}

TEST(Settings, TakeFromTheInstallFileWhatIsEmpty) {
  const IniTable install = ReadINIFileToArray(
      "[General]\nLog EXE=L.exe\nConversion EXE=C.exe\nDefault Working Directory=W\n"
      "Checked Data Items=3,5\nInitial Directory=no\n");
  const IniTable table =
      ReadINIFileToArray("[General]\nLog EXE=\nConversion EXE=mine\nInitial Directory=\n");
  Settings settings;
  ReadGeneralSettings(table, &install, settings);
  std::string told;
  for (const SettingRow& row : AllSettings())
    if (row.text(settings) != row.text({})) told += row.key + ("=" + row.text(settings)) + "; ";
  ExpectTold(
      told,
      "Checked Data Items=3,5; Log EXE=L.exe; Conversion EXE=mine; Default Working Directory=W; ");
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
