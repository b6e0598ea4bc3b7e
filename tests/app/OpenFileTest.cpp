// The road of one file in the main window: choosing, loading, what a load clears and sets up.

#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

using OpenFile = ProgramFixture;
TEST_F(OpenFile, ALogOnTheCommandLineIsLoadedAndDrawn) {
  files.files["/logs/run.txt"] = SmallLog(40);
  files.here = "/logs/";
  Start("\"run.txt\"");
  EXPECT_EQ(MessageIds(), (Ids{16}));
  EXPECT_EQ(Main().Caption(), "Tarnview - run.txt (FM Link Data Log)");
  EXPECT_EQ(Main().staDataLogViewer.Panel(3), "Sample Load Range 1 - 40");
  EXPECT_TRUE(Main().chSampleGraph.Visible());
  EXPECT_FALSE(Main().fraPicture.Visible());
  EXPECT_EQ(Said(), "Sample: 20, Secs: 1.638");
  EXPECT_EQ(Main().mnuRecentlyUsed(0).Tag, "1|/logs/run.txt");
}

TEST_F(OpenFile, WhatDoesNotLoadIsToldAndLeavesNoLog) {
  files.files["/logs/two.txt"] = SmallLog(2);
  files.files["/logs/empty.txt"] = "";
  files.files["/logs/other.txt"] = "RPM;MAP\r\n";
  files.files["/logs/locked.txt"] = "Sample";
  files.files["/logs/good.txt"] = SmallLog(3);
  files.broken.insert("/logs/locked.txt");
  Start();
  const struct {
    const char* path;
    int type;
    Ids messages;
  } kRows[] = {
      {"/logs/two.txt", 0, {16, 12}},   {"/logs/empty.txt", 1, {52, 12}},
      {"/logs/other.txt", 0, {52, 12}}, {"/logs/locked.txt", 0, {15, 12}},
      {"/logs/none.txt", 0, {15, 12}},  {"/logs/other.txt", 99, {31, 12}},
  };
  for (const auto& row : kRows) {
    ASSERT_TRUE(Main().LoadDataFile("/logs/good.txt", 0));
    host.messages.clear();
    EXPECT_FALSE(Main().LoadDataFile(row.path, row.type)) << row.path;
    EXPECT_EQ(MessageIds(), row.messages) << row.path;
    EXPECT_EQ(Main().Caption(), "Tarnview");
    EXPECT_EQ(Said(), "Loading failed");
    EXPECT_FALSE(Log().gblnZonesDirty);
    EXPECT_FALSE(Main().cmdDrawGraph.Enabled());
    EXPECT_FALSE(Main().fraGraphSeriesFrame.Enabled());
    EXPECT_EQ(Main().PlotRangeFrom.Text(), "");
  }
  EXPECT_EQ(Main().mnuRecentlyUsed(0).Tag, "1|/logs/good.txt");
}

TEST_F(OpenFile, AnAbsurdFileIsRefusedWithItsReason) {
  files.files["/logs/giant.txt"] = "";
  files.broken.insert("/logs/giant.txt");
  files.files["/logs/line.txt"] = "Sample" + std::string(16 << 20, '\0');
  Start();
  const std::pair<const char*, const char*> rows[] = {
      {"/logs/giant.txt", "File could not be loaded.\r\n\r\nIt is larger than 1 GiB."},
      {"/logs/line.txt", "File could not be loaded.\r\n\r\nIt has a line of more than 16 MB."},
      {"/logs/none.txt", "File could not be loaded."}};
  for (const auto& [path, text] : rows) {
    host.messages.clear();
    EXPECT_FALSE(Main().LoadDataFile(path, kUniversalLog));
    ASSERT_FALSE(host.messages.empty());
    EXPECT_EQ(host.messages[0].text, text);
  }
}

TEST_F(OpenFile, AMarkInFrontAndLinesThatEndInCRAreNoFault) {
  std::string log = SmallLog(5);
  files.files["/logs/mark.txt"] = "\xEF\xBB\xBF" + log;
  std::erase(log, '\n');
  files.files["/logs/cr.txt"] = log;
  Start();
  for (const char* path : {"/logs/mark.txt", "/logs/cr.txt"})
    for (const int type : {kFMLinkLog, kUnknownFile}) {
      host.messages.clear();
      EXPECT_TRUE(Main().Files().OpenFile(path, type)) << path;
      EXPECT_EQ(Log().glngDataLog.Rows(), 5) << path;
      EXPECT_EQ(MessageIds(), (Ids{16})) << path;  // and no question what it is
      EXPECT_TRUE(Main().Files().OpenByContent(path)) << path;
      EXPECT_EQ(Log().gintCurrentFileType, kFMLinkLog) << path;
    }
}

TEST_F(OpenFile, AFolderThatIsDroppedIsNoFile) {
  Open(5);
  files.folders = {"/logs"};
  EXPECT_FALSE(Main().DropFile("/logs"));
  EXPECT_TRUE(Main().DropFile("/logs/run.txt"));
  EXPECT_EQ(Boxes(), (Ids{16}));
}

TEST_F(OpenFile, TheDialogStartsAtTheLastFileAndItsTypeDecides) {
  files.files["/logs/run.dat"] = SmallLog(5);
  Start();
  host.answers.push_back({Answer::Kind::File, "/logs/run.dat", 0, 1});
  Main().mnuFileOpen.Click();
  EXPECT_EQ(Log().gintCurrentFileType, 1);
  EXPECT_TRUE(Log().gblnSamplesLoaded);
  Main().mnuFileOpen.Click();  // Cancel
  EXPECT_TRUE(Log().gblnSamplesLoaded);
}

TEST_F(OpenFile, IsDrawnAtOnceWhereThatIsWanted) {
  files.files["/logs/run.txt"] = SmallLog(40);
  for (const char* settings :
       {"[General]\nChecked Data Items=3\n", "[General]\nChecked Data Items=56\n"})
    for (const bool wanted : {false, true}) {
      Start("", settings + std::string(wanted ? "[Beyond]\nDraw After Opening=Y\n" : ""));
      EXPECT_EQ(Main().lblEmptyPlace.Caption(), "Open a log, or drop one here");
      host.messages.clear();
      Main().LoadDataFile("/logs/run.txt", 0);
      const bool ticked = settings[std::string_view(settings).size() - 2] == '3';
      EXPECT_EQ(Main().chSampleGraph.Visible(), wanted && ticked) << settings;
      EXPECT_EQ(Main().lblEmptyPlace.Caption(), "Press Draw, or Enter");
      EXPECT_EQ(MessageIds(), (Ids{16}));
    }
}

TEST_F(OpenFile, AMissingRecentFileIsToldAndStays) {
  Open(5);
  files.files.clear();
  Main().mnuRecentlyUsed(0).Click();
  EXPECT_EQ(MessageIds(), (Ids{15}));
  EXPECT_TRUE(Main().mnuRecentlyUsed(0).Visible());
  EXPECT_TRUE(Log().gblnSamplesLoaded);
}

TEST_F(OpenFile, TheFirstRangeFollowsWarmthAndWidth) {
  const std::string cold = SmallLog(64);
  std::string warming = cold;
  // The first summary, behind sample 16, is still cold.
  warming.replace(warming.find("     80 AT"), 10, "      5 AT");
  files.files["/logs/run.txt"] = warming;
  const struct {
    const char* settings;
    const char* range;
  } kRows[] = {
      {"[General]\nPlot From Temperature=50\n", "27-64"},
      {"[General]\nPlot From Temperature=99\n", "1-64"},
      {"[General]\nPlot From Temperature=50\nInitial Plot Width=20\n", "27-47"},
      {"[General]\nPlot From Temperature=50\nInitial Plot Width=38\n", "27-64"},
      {"[General]\nPlot From Temperature=99\nInitial Plot Width=20\n", "1-21"},
      {"[General]\nInitial Plot Width=1\n", "1-64"},
  };
  for (const auto& row : kRows) {
    Start("", row.settings);
    ASSERT_TRUE(Main().LoadDataFile("/logs/run.txt", 0));
    EXPECT_EQ(Range(), row.range) << row.settings;
  }
}

TEST_F(OpenFile, WithoutQuickGraphALongLogIsShortenedInSilence) {
  Open(1500);
  Main().chkQuickGraph.Value = false;
  Main().LoadDataFile("/logs/run.txt", 0);
  EXPECT_EQ(Main().PlotRangeTo.Text(), "1000");
  EXPECT_EQ(Boxes(), (Ids{16}));
}

TEST_F(OpenFile, EditedZonesAreProtected) {
  Open(5);
  program->Global().log.gblnZonesDirty = true;
  host.answers.push_back({Answer::Kind::Cancel, "", 0, 0});
  Main().mnuFileOpen.Click();
  ASSERT_EQ(host.messages.size(), 1u);
  EXPECT_EQ(host.messages[0].text, "Do you want to save the changes made to run.txt?");
  EXPECT_EQ(host.messages[0].style, 51);
  for (const auto kind : {Answer::Kind::Cancel, Answer::Kind::Yes}) {  // nothing can save them yet
    host.answers.push_back({kind, "", 0, 0});
    EXPECT_FALSE(Main().Unload());
  }
  for (const char* entry : {"mnuRecentlyUsed(0)", "mnuFileEditDefinition", "mnuFileOpen"}) {
    host.answers = {{Answer::Kind::Cancel}};
    host.messages.clear();
    Do(std::string("click ") + entry);
    EXPECT_EQ(host.messages.size(), 1u) << entry;
  }
  host.answers.push_back({Answer::Kind::No, "", 0, 0});
  EXPECT_TRUE(Main().Unload());
}

}  // namespace
}  // namespace tarnview
