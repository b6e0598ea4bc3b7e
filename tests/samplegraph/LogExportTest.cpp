#include <gtest/gtest.h>

#include "samplegraph/LogExport.h"

namespace tarnview {
namespace {

TEST(LogExport, ProposesAFileThatIsNotTheLog) {
  EXPECT_EQ(GetExportPathFile("/logs/run.txt"), "/logs/run.csv");
  EXPECT_EQ(GetExportPathFile("C:\\logs\\run"), "C:\\logs\\run.csv");
  EXPECT_EQ(GetExportPathFile("/logs/run.CSV"), "/logs/run_export.csv");
}

}  // namespace
}  // namespace tarnview
