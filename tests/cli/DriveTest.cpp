// A script and what it prints are a test of a whole use: tests/cli/scripts/NAME.txt and NAME.out,
// with the example logs as the current folder. TARNVIEW_ACCEPT=1 writes what comes out as the new
// NAME.out: read the difference.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/Commands.h"

namespace tarnview {
namespace {

namespace fs = std::filesystem;

std::string Contents(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

std::string Drive(const fs::path& script) {
  const std::string path = script.string();
  const char* const arguments[] = {"tarnview-cli", "drive", path.c_str()};
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  const int status = RunCommandLine(3, arguments);
  const std::string out = ::testing::internal::GetCapturedStdout();
  return out + ::testing::internal::GetCapturedStderr() + "exit status " + std::to_string(status) +
         "\n";
}

TEST(Drive, ScriptsPrintWhatTheyDid) {
  const fs::path before = fs::current_path();
  fs::current_path(TARNVIEW_EXAMPLES);
  int scripts = 0;
  for (const auto& entry : fs::directory_iterator(fs::path(TARNVIEW_TESTS) / "cli/scripts")) {
    if (entry.path().extension() != ".txt") continue;
    ++scripts;
    const std::string printed = Drive(entry.path());
    const fs::path expected = fs::path(entry.path()).replace_extension(".out");
    if (std::getenv("TARNVIEW_ACCEPT")) std::ofstream(expected, std::ios::binary) << printed;
    EXPECT_EQ(printed, Contents(expected)) << entry.path();
  }
  EXPECT_GT(scripts, 0);
  fs::current_path(before);
}

}  // namespace
}  // namespace tarnview
