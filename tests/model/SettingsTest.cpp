#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/IniFile.h"
#include "model/Settings.h"

namespace tarnview {
namespace {

TEST(IniFile, KeepsKeysAsTheyStand) {
  const IniTable table =
      ReadINIFileToArray("first=1\r\n[A]\nkey = a = b \n Key=2\nkey=3\n[B\nlone\n[A] \n[ C ]\nkey=4");
  EXPECT_EQ(GetINIValue(table, "", "first"), "1");
  EXPECT_EQ(GetINIValue(table, "A", "key "), "a = b");
  EXPECT_EQ(GetINIValue(table, "A", "key"), "3");
  EXPECT_EQ(GetINIValue(table, "A", " Key"), "2");
  EXPECT_EQ(GetINIValue(table, "A", "Key"), std::nullopt);
  EXPECT_EQ(GetINIValue(table, "a", "key"), std::nullopt);
  EXPECT_EQ(GetINIValue(table, "A", "[B"), "");
  EXPECT_EQ(GetINIValue(table, "A", "lone"), "");
  EXPECT_EQ(GetINIValue(table, "A", "[A] "), "");
  EXPECT_EQ(GetINIValue(table, " C ", "key"), "4");
  EXPECT_EQ(GetINIValue(ReadINIFileToArray("[A]\nk=1\nk=2"), "A", "k"), "1");
}

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
  EXPECT_EQ(ReadSettings("[Other]\nZoom Amount=30\n").gintZoomAmount, 2);
}

TEST(Settings, ListRecentFilesLatestFirst) {
  std::string text = "[Recently Used Files]\n";
  for (const int n : {9, 8, 2, 0}) text += "File " + std::to_string(n) + "=1|C:\\" + std::to_string(n) + ".txt\n";
  EXPECT_EQ(Join(ReadSettings(text + "File 3=\n").recentFiles, " "), "1|C:\\0.txt 1|C:\\2.txt 1|C:\\8.txt");
}

}  // namespace
}  // namespace tarnview
