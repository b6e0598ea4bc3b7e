#include <gtest/gtest.h>

#include "base/EXEFunctions.h"
#include "support/RecordingProcesses.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(EXEFunctions, TellWhyADocumentDidNotOpen) {
  RecordingProcesses processes;
  RecordingHost host;
  EXEFunctions programs(processes, host);
  EXPECT_EQ(programs.ShellOpen("a.htm"), 33);
  EXPECT_TRUE(host.messages.empty());

  for (const auto& [code, text] : {std::pair(2, "File not found"), std::pair(31, "No association for file extension"),
                                   std::pair(0, "Unknown error"), std::pair(32, "DLL not found")}) {
    processes.openCode = code;
    programs.ShellOpen("b.htm");
    EXPECT_EQ(host.messages.back().text, text);
    EXPECT_EQ(host.messages.back().style, kBoxOk);
  }
  EXPECT_EQ(processes.opened.size(), 5u);
  processes.exitCodes = {-22};
  EXPECT_EQ(programs.RunAndWait("LinkWin.exe 1"), -22);
}

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
