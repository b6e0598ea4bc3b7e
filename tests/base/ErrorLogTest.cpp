#include <gtest/gtest.h>

#include <new>

#include "base/ErrorLog.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"

namespace tarnview {
namespace {

std::string Entry(const std::string& location, const std::string& number) {
  return "Date & Time  : 24-Nov-2026 14:05\r\nLocation     : " + location +
         "\r\nNumber       : " + number + "\r\n\r\n";
}
const std::string kRule = "--------------------------------------------------\r\n";

class ErrorLogTest : public testing::Test {
 protected:
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog log{files, clock, "error.log"};
};

TEST_F(ErrorLogTest, NestsTheEntriesOfOneFailure) {
  files.files["error.log"] = "of the last run";
  log.ResetErrorLog();
  const auto inner = [&] {
    const RuntimeError mismatch(13, "Type mismatch");
    log.LogError("modInner", "Work", mismatch, true);
    throw mismatch;
  };
  EXPECT_FALSE(TrapEvent(log, "frmOuter", "cmdOK_Click", inner));
  EXPECT_EQ(files.files["error.log"],
            "Tarnview Error File\r\nFile Created : 24-Nov-2026 14:05\r\n\r\n" +
                Entry("Tarnview/modInner/Work", "13 Type mismatch") +
                Entry("Tarnview/frmOuter/cmdOK_Click", "13 Type mismatch") + kRule);
}

TEST_F(ErrorLogTest, ASecondProgramWritesBehindTheFirst) {
  files.files["error.log"] = "of the first\r\n";
  files.heldByAnother = {"error.log"};
  log.ResetErrorLog();
  EXPECT_FALSE(TrapEvent(log, "m", "p", [] { throw std::out_of_range("index"); }));
  EXPECT_TRUE(TrapEvent(log, "m", "p", [] {}));
  EXPECT_EQ(files.files["error.log"],
            "of the first\r\n" + Entry("Tarnview/m/p", "5 index") + kRule);
}

TEST_F(ErrorLogTest, TellsWantOfMemoryAndPassesItOn) {
  EXPECT_THROW(TrapEvent(log, "m", "p", [] { throw std::bad_alloc(); }), std::bad_alloc);
  EXPECT_NE(files.files["error.log"].find("Location     : Tarnview/m/p\r\n"), std::string::npos);
}

TEST_F(ErrorLogTest, IsGivenUpInSilence) {
  files.failWrites = true;
  log.ResetErrorLog();
  log.LogError("m", "p", RuntimeError(1, "x"), false);
  EXPECT_TRUE(files.files.empty());

  ErrorLog none(files, clock, "");
  files.accesses.clear();
  none.ResetErrorLog();
  none.LogError("m", "p", RuntimeError(1, "x"), false);
  EXPECT_TRUE(files.accesses.empty());
}

TEST(Clock, TellsTheMachinesTime) {
  const Moment now = RealClock().Now();
  EXPECT_GE(now.year, 2024);
  EXPECT_EQ(LogTime({2026, 1, 2, 3, 4, 5}), "02-Jan-2026 03:04");
}

}  // namespace
}  // namespace tarnview
