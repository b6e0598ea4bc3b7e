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

TEST_F(UniversalLogs, ALogOfUnknownColumnsNamesTheReportAndABadDefinitionIsTold) {
  files.files["/d.txt"] = DefinitionText{"LINEFREQUENCY=1\n", {ColumnText("Revs", 3)}, ""}.Text();
  files.files["/none.csv"] = "a,b\n1,2\n";
  files.files["/short.csv"] = "Revs,b\n1,2\n";
  files.files["/bad.txt"] = "rubbish";
  story.Verb("in", [this](const auto& words) {
    StartKeeping("[General]\nGeneric Data Log Definition File=" + words[0] + "\n",
                 {"/car/", "/car/data/"});
  });
  story.Verb("bare", [this](const auto& words) {
    Start("", "[General]\nGeneric Data Log Definition File=" + words[0] + "\n");
  });
  story.Event("told", [this] {
    std::string told;
    for (const Box& box : std::exchange(host.messages, {}))
      if (box.id == 83) told += box.text + " " + box.offer;
    return told;
  });
  story.Fact("opened", [this] { return Join(processes.opened, " "); });
  story.Fact("logged", [this] {
    const std::string& log = files.files["/car/error.log"];
    return std::to_string(std::count(log.begin(), log.end(), '-') / 50);
  });
  Fact("columns", [this] {
    return std::to_string(program->Global().gclsDataLogDefinition.objColumns.Count());
  });
  files.folders.insert("/car/data");
  host.takesOffers = true;
  EXPECT_STORY(story);
}

}  // namespace
}  // namespace tarnview
