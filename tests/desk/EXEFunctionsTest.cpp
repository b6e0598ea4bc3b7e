#include "desk/EXEFunctions.h"
#include "support/RecordingProcesses.h"
#include "support/Table.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

TEST(EXEFunctions, TellWhyADocumentDidNotOpen) {
  RecordingProcesses processes;
  RecordingHost host;
  EXEFunctions programs(processes, host);
  EXPECT_EQ(programs.ShellOpen("a.htm"), 33);
  EXPECT_TRUE(host.messages.empty());

  std::string told = "\n";
  for (processes.openCode = 0; processes.openCode <= 32; ++processes.openCode) {
    programs.ShellOpen("b.htm");
    const Box& box = host.messages.back();
    if (box.text != "Unknown error" || box.style != kBoxOk || box.id != 0)
      told += std::to_string(processes.openCode) + " " + box.text + "; ";
  }
  ExpectTold(told, R"(
2 File not found; 3 Path not found; 5 Access denied; 8 Out of memory; 11 Invalid EXE file or error in EXE image; 26 A sharing violation occurred; 27 Incomplete or invalid file association; 28 DDE Time out; 29 DDE transaction failed; 30 DDE busy; 31 No association for file extension; 32 DLL not found; )");
  EXPECT_EQ(processes.opened.size(), 34u);
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
