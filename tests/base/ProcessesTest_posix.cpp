#include <chrono>
#include <thread>

#include "base/Processes.h"
#include "support/ScratchFolder.h"
#include "support/Table.h"

namespace tarnview {
namespace {

class ProcessesTest : public testing::Test {
 protected:
  void PutScript(const std::string& name, const std::string& lines) {
    folder.Put(name, "#!/bin/sh\n" + lines);
    std::filesystem::permissions(folder.path / name, std::filesystem::perms::owner_all);
  }
  /// "-3", "not started: Permission denied"; "left alone" once it was asked `patience` times.
  std::string Run(const ProgramCall& call, const std::string& where, int patience = 1 << 30) {
    const RunResult result = processes.Run(call, where, [&] { return --patience > 0; });
    if (result.end == RunResult::End::LeftAlone) return "left alone";
    if (result.end == RunResult::End::NotStarted) return "not started: " + result.trouble;
    return std::to_string(result.exitCode) + result.trouble;
  }

  ScratchFolder folder;
  RealProcesses processes;
};

TEST_F(ProcessesTest, RunACommandLineAsItStands) {
  const auto tell = [this](const TableRow& row) { return Run({"/bin/sh", " " + row.All()}, ""); };
  ExpectTable(tell, R"(
-c "exit 0" -> 0 | -c "exit 3" -> 3 | -c "exit 127" -> 127 | -c "exit 128" -> -128 | -c "exit 255" -> -1 | -c "exit 234" -> -22 | -c "kill -9 $$" -> -119
# Words keep what is in quotes, empty ones too, and nothing is expanded.
-c "IFS=; set -f; test $# = 4 && test x$1 = 'xa  b' && test x$2 = x && test x$3 = 'x*' && test $4 = 'C:\x\'" sh "a  b" "" * C:\x\ -> 0
)");
  EXPECT_EQ(processes.Open("/no/such/document.htm"), 2);
}

TEST_F(ProcessesTest, TellInTheSystemsWordsWhyNothingStarted) {
  EXPECT_EQ(Run({"/no/such/program", " --x"}, ""), "not started: No such file or directory");
  EXPECT_EQ(Run({"/bin/sh", ""}, "/no/such/folder"), "not started: No such file or directory");
  EXPECT_EQ(Run({"/tmp", ""}, ""), "not started: Permission denied");
  EXPECT_TRUE(Run({"", ""}, "").starts_with("not started"));
}

TEST_F(ProcessesTest, TheFolderIsTheChildsAloneAndAPathWithBlanksIsOneWord) {
  PutScript("my tool", "pwd >where; echo \"$0|$1|$2\" >words; echo noise\n");
  const auto before = std::filesystem::current_path();
  EXPECT_EQ(Run({folder.Path("my tool"), " -f TVW.map"}, folder.Path("")), "0");
  EXPECT_EQ(std::filesystem::current_path(), before);
  EXPECT_EQ(folder.Get("where"), folder.path.string() + "\n");
  EXPECT_EQ(folder.Get("words"), folder.Path("my tool") + "|-f|TVW.map\n");
  // A program that is named from this program's folder is found from there.
  EXPECT_EQ(Run({std::filesystem::relative(folder.path / "my tool").string(), ""}, folder.Path("")),
            "0");
}

TEST_F(ProcessesTest, AProgramThatIsLeftAloneGoesOn) {
  PutScript("slow", "while [ ! -e go ]; do sleep 0.01; done; echo done >end\n");
  EXPECT_FALSE(processes.IsAnyLeftAlone());
  EXPECT_EQ(Run({folder.Path("slow"), ""}, folder.Path(""), 3), "left alone");
  EXPECT_TRUE(processes.IsAnyLeftAlone());
  folder.Put("go", "now");
  while (processes.IsAnyLeftAlone()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  EXPECT_EQ(folder.Get("end"), "done\n");
}

}  // namespace
}  // namespace tarnview
