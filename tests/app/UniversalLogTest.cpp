// Universal logs in the main window: the definition, its names, and what a load tells.

#include "app/frmAbout.h"
#include "support/ProgramFixture.h"
#include "universal/DefinitionText.h"
#include "universal/UnknownColumns.h"

namespace tarnview {
namespace {

class UniversalLogs : public ProgramFixture {
 protected:
  /// A start with a program folder, where reports may be written.
  void StartIn(const std::string& path) {
    StartKeeping("[General]\nGeneric Data Log Definition File=" + path + "\n",
                 {"/car/", "/car/data/"});
    host.messages.clear();
  }
  const std::string definition =
      DefinitionText{"", {ColumnText("Time", 63, 3), ColumnText("Revs", 3)}, ""}.Text();
};

TEST_F(UniversalLogs, ALogIsReadThroughTheDefinitionOfTheSettings) {
  files.files["/d.txt"] = definition;
  files.files["/run.csv"] = "Time,Revs,Other\n0,1000,5\n1,2000,5\n2,3000,5\n";
  StartIn("/d.txt");
  ASSERT_TRUE(Main().LoadDataFile("/run.csv", kUniversalLog));
  EXPECT_TRUE(host.messages.empty());
  EXPECT_EQ(Main().Caption(), "Tarnview - run.csv (Universal - Test Log)");
  EXPECT_EQ(Log().FormatDataItem(3, 1), "2000");
  const auto& row = Main().lvwSampleDetails.At(Main().lvwSampleDetails.RowOfTag("3"));
  EXPECT_EQ(row.texts[0] + ": " + row.toolTip, "Revs: About Revs\r\nData log column(s): Revs");
  EXPECT_EQ(Main().lvwSampleDetails.RowOfTag("5"), 0);
  EXPECT_NE(
      files.files[std::string("/car/") + kUnknownColumnsFile].find("Unknown Columns:\r\nOther\r\n"),
      std::string::npos);
}

TEST_F(UniversalLogs, ALogOfUnknownColumnsNamesTheReport) {
  files.files["/d.txt"] = DefinitionText{"LINEFREQUENCY=1\n", {ColumnText("Revs", 3)}, ""}.Text();
  files.files["/run.csv"] = "a,b\n1,2\n";
  StartIn("/d.txt");
  EXPECT_FALSE(Main().LoadDataFile("/run.csv", kUniversalLog));
  EXPECT_EQ(MessageIds(), (std::vector<int>{83, 12}));
  EXPECT_EQ(host.messages[0].text,
            "Error loading data log - no columns recognised:\r\n\r\na,b\r\n\r\n"
            "The columns are listed in the report:\r\n/car/Universal Load Unknown Columns.txt");
  EXPECT_EQ(host.messages[0].offer, "&Open Report");
  host.messages[0].takeOffer();
  EXPECT_EQ(processes.opened, std::vector<std::string>{"/car/Universal Load Unknown Columns.txt"});
  // Without a folder to write to there is no report, and the message says no more than the line.
  Start();
  host.messages.clear();
  Main().LoadDataFile("/run.csv", kUniversalLog);
  EXPECT_EQ(host.messages[0].id, 90);
  EXPECT_EQ(host.messages[0].offer, "");
}

TEST_F(UniversalLogs, ADefinitionThatIsMissingOrBadIsToldAndTheBuiltInOneServes) {
  files.files["/bad.txt"] = "rubbish";
  const struct {
    const char* path;
    int message;
  } kRows[] = {{"/none.txt", 79}, {"/bad.txt", 69}};
  for (const auto& row : kRows) {
    host.messages.clear();
    Start("", std::string("[General]\nGeneric Data Log Definition File=") + row.path + "\n");
    EXPECT_EQ(MessageIds(), std::vector<int>{row.message});
    EXPECT_EQ(program->Global().gclsDataLogDefinition.objColumns.Count(), 19);
    EXPECT_EQ(program->Global().kinds.gcolFileTypes.GuessFileType("/run.csv", 1), kUniversalLog);
  }
}

}  // namespace
}  // namespace tarnview
