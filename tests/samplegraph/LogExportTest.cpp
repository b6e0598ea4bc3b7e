#include "WholeGraph.h"
#include "samplegraph/ExportRun.h"
#include "samplegraph/LogExport.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"

namespace tarnview {
namespace {

TEST(LogExport, ProposesAFileThatIsNotTheLog) {
  EXPECT_EQ(GetExportPathFile("/logs/run.txt"), "/logs/run.csv");
  EXPECT_EQ(GetExportPathFile("C:\\logs\\run"), "C:\\logs\\run.csv");
  EXPECT_EQ(GetExportPathFile("/logs/run.CSV"), "/logs/run_export.csv");
}

class LogExportTest : public WholeGraph {
 protected:
  /// Exports as the main window does; the file's lines.
  std::string Export(const std::string& from, const std::string& to) {
    PlotRangeFrom.Text = from;
    PlotRangeTo.Text = to;
    const ExportRun run{window, status, messages, errors, "ExportDataLog"};
    wrote = run.Run(path, [&](const std::string& file) {
      said = foot.Panel(1);
      log_.ExportDataLog(file, "A Log");
    });
    std::string text = files.files[path];
    std::erase(text, '\r');
    return text;
  }

  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, ""};
  LogExport log_{{lvwSampleDetails, chkShowCheckedOnly}, range, log, files, status};
  std::string path = "/a.csv", said;
  bool wrote = false;
};

TEST_F(LogExportTest, WritesTheItemsOfTheListOverThePlotRange) {
  OpenLog(40);
  Do("click chkShowCheckedOnly; tick lvwSampleDetails Knock off");
  host.answers = {{Answer::Kind::Ok}, {Answer::Kind::File, "/b.csv"}};
  EXPECT_EQ(Export("2", "3"), R"(TARNVIEW EXPORT FILE
Original Data Log Path and File Name: /logs/run.txt
Original Data Log File Type: A Log

Sample,Secs,RPM
2,0.164,1002
3,0.246,1003
)");
  EXPECT_EQ(said + foot.Panel(1), "Exporting...Export complete");
  EXPECT_EQ(progress.Max(), 1);
  EXPECT_TRUE(Export("40", "7").ends_with("RPM\n7,0.573,1007\n")) << "from no later than to";
  EXPECT_EQ(path, "/b.csv");
  host.answers = {{Answer::Kind::Cancel}};
  Export("1", "2");
  EXPECT_FALSE(wrote);
  files.failWrites = true;
  host.answers = {{Answer::Kind::Ok}};
  Export("1", "2");
  EXPECT_EQ(files.accesses.back(), "write /b.csv") << "the path used last";
  EXPECT_EQ(Boxes(), " [64]");
  EXPECT_FALSE(wrote);
}

}  // namespace
}  // namespace tarnview
