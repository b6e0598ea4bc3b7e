// A script and what it prints are a test of a whole use: tests/cli/scripts/NAME.txt and NAME.out,
// with the example logs as the current folder. TARNVIEW_ACCEPT=1 writes what comes out as the new
// NAME.out: read the difference.

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "cli/RunCli.h"

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

TEST(Drive, ScriptsPrintWhatTheyDid) {
  int scripts = 0;
  for (const auto& entry : fs::directory_iterator(fs::path(TARNVIEW_TESTS) / "cli/scripts")) {
    if (entry.path().extension() != ".txt") continue;
    ++scripts;
    const Ran ran = RunCli("drive \"" + entry.path().string() + '"');
    const std::string printed =
        ran.out + ran.err + "exit status " + std::to_string(ran.status) + "\n";
    const fs::path expected = fs::path(entry.path()).replace_extension(".out");
    if (std::getenv("TARNVIEW_ACCEPT")) std::ofstream(expected, std::ios::binary) << printed;
    EXPECT_EQ(printed, Contents(expected)) << entry.path();
  }
  EXPECT_GT(scripts, 0);
}

}  // namespace
}  // namespace tarnview
