#include <gtest/gtest.h>

#include "support/MemoryFileSystem.h"
#include "universal/UnknownColumns.h"

namespace tarnview {
namespace {

TEST(UnknownColumns, TheReportTakesThePlaceOfAnEarlierOne) {
  MemoryFileSystem files;
  files.files["/car/Universal Load Unknown Columns.txt"] = "old";
  EXPECT_EQ(WriteUnknownUniversalColumns(files, {2026, 11, 24, 14, 5, 9}, "/car/", "/d.txt",
                                         "/l.csv", {" A ", "B"}),
            "/car/Universal Load Unknown Columns.txt");
  EXPECT_EQ(
      files.files["/car/Universal Load Unknown Columns.txt"],
      "TARNVIEW UNKNOWN COLUMNS\r\n\r\nData & Time of load:\r\n24-Nov-2026 14:05\r\n"
      "Universal Data Log Definition File Name:\r\n/d.txt\r\nData Log File Name:\r\n/l.csv\r\n\r\n"
      "Unknown Columns:\r\n A \r\nB\r\n");
  files.failWrites = true;
  EXPECT_EQ(WriteUnknownUniversalColumns(files, {}, "/car/", "", "", {"A"}), "");
}

TEST(UnknownColumns, OutsideProgramsLearnOfALog) {
  MemoryFileSystem files;
  EXPECT_TRUE(CreateNewDataLogDescriptionFile(files, "/logs/", "/logs/run.csv"));
  EXPECT_EQ(files.files["/logs/NewDataLogDescription.txt"],
            "[General]\r\nPath and Filename=/logs/run.csv\r\n");
}

}  // namespace
}  // namespace tarnview
