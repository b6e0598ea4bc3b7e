#include <gtest/gtest.h>

#include <utility>

#include "base/Processes.h"

namespace tarnview {
namespace {

TEST(RealProcesses, RunACommandLineAsItStands) {
  const std::pair<const char*, int> rows[] = {
      {"/bin/sh -c \"exit 3\"", 3},
      {"sh -c \"exit 255\"", -1},
      {"sh -c \"exit 234\"", -22},
      {"sh -c \"exit 127\"", 127},
      {"sh -c \"kill -9 $$\"", 137 - 256},
      // Words keep what is in quotes, empty ones too, and nothing is expanded.
      {R"(sh -c "IFS=; set -f; test $# = 4 && test x$1 = 'xa  b' && test x$2 = x && test x$3 = 'x*' && test $4 = 'C:\x\'" sh "a  b" "" * C:\x\)",
       0},
      {"", -1000},
      {"   ", -1000},
      {"/no/such/program --x", -1000},
  };
  RealProcesses processes;
  for (const auto& [command, code] : rows) EXPECT_EQ(processes.Run(command), code) << command;
  EXPECT_EQ(processes.Open("/no/such/document.htm"), 2);
}

}  // namespace
}  // namespace tarnview
