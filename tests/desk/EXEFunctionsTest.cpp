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

  for (const auto& [code, text] :
       {std::pair(2, "File not found"), std::pair(31, "No association for file extension"),
        std::pair(0, "Unknown error"), std::pair(32, "DLL not found")}) {
    processes.openCode = code;
    programs.ShellOpen("b.htm");
    EXPECT_EQ(host.messages.back().text, text);
    EXPECT_EQ(host.messages.back().style, kBoxOk);
  }
  EXPECT_EQ(processes.opened.size(), 5u);
}

TEST(EXEFunctions, WaitForAProgramUntilItEndsOrTheUserHasEnough) {
  RecordingProcesses processes;
  RecordingHost host;
  EXEFunctions programs(processes, host);
  processes.exitCodes = {-22};
  EXPECT_EQ(programs.RunAndWait({"C:\\Link\\LinkWin.exe", " 1"}, "C:\\Link\\"),
            (RunResult{RunResult::End::Exited, -22}));
  host.answers = {{Answer::Kind::Stop}};
  EXPECT_EQ(programs.RunAndWait({"/l", ""}, "/"), (RunResult{RunResult::End::LeftAlone}));
  EXPECT_TRUE(programs.IsAnyLeftAlone());
  EXPECT_TRUE(host.answers.empty());
  EXPECT_EQ(host.waits, (std::vector<std::string>{"LinkWin.exe", "l"}));
  EXPECT_EQ(processes.commands, (std::vector<std::string>{"C:\\Link\\LinkWin.exe 1", "/l"}));
  EXPECT_EQ(processes.folders, (std::vector<std::string>{"C:\\Link\\", "/"}));
}

}  // namespace
}  // namespace tarnview
