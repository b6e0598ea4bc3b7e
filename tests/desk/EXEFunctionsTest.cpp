#include <gtest/gtest.h>

#include "desk/EXEFunctions.h"
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

}  // namespace
}  // namespace tarnview
