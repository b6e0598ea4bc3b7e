#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>
#include <utility>

#include "base/Processes.h"

namespace tarnview {
namespace {

using End = RunResult::End;

bool Wait() { return true; }

TEST(RealProcesses, RunACommandLineAsItStands) {
  const std::pair<const char*, int> rows[] = {
      {" -c \"exit 0\"", 0},
      {" -c \"exit 3\"", 3},
      {" -c \"exit 127\"", 127},
      {" -c \"exit 128\"", -128},
      {" -c \"exit 255\"", -1},
      {" -c \"exit 234\"", -22},
      {" -c \"kill -9 $$\"", 137 - 256},
      // Words keep what is in quotes, empty ones too, and nothing is expanded.
      {R"( -c "IFS=; set -f; test $# = 4 && test x$1 = 'xa  b' && test x$2 = x && test x$3 = 'x*' && test $4 = 'C:\x\'" sh "a  b" "" * C:\x\)",
       0},
  };
  RealProcesses processes;
  for (const auto& [arguments, code] : rows)
    EXPECT_EQ(processes.Run({"/bin/sh", arguments}, "", Wait), (RunResult{End::Exited, code}))
        << arguments;
  EXPECT_EQ(processes.Open("/no/such/document.htm"), 2);
}

TEST(RealProcesses, TellInTheSystemsWordsWhyNothingStarted) {
  RealProcesses processes;
  EXPECT_EQ(processes.Run({"/no/such/program", " --x"}, "", Wait),
            (RunResult{End::NotStarted, 0, "No such file or directory"}));
  EXPECT_EQ(processes.Run({"/bin/sh", ""}, "/no/such/folder", Wait),
            (RunResult{End::NotStarted, 0, "No such file or directory"}));
  EXPECT_EQ(processes.Run({"/tmp", ""}, "", Wait),
            (RunResult{End::NotStarted, 0, "Permission denied"}));
  EXPECT_EQ(processes.Run({"", ""}, "", Wait).end, End::NotStarted);
}

class Folder : public ::testing::Test {
 protected:
  Folder() { std::filesystem::create_directories(path); }
  ~Folder() override { std::filesystem::remove_all(path); }
  void WriteScript(const std::string& name, const std::string& lines) {
    std::ofstream(path / name) << "#!/bin/sh\n" << lines;
    std::filesystem::permissions(path / name, std::filesystem::perms::owner_all);
  }

  std::filesystem::path path =
      std::filesystem::temp_directory_path() / ("processes of " + std::to_string(::getpid()));
};

TEST_F(Folder, IsTheChildsAloneAndAPathWithBlanksIsOneWord) {
  WriteScript("my tool", "pwd >where; echo \"$0|$1|$2\" >words; echo noise\n");
  const auto before = std::filesystem::current_path();
  RealProcesses processes;
  EXPECT_EQ(processes.Run({(path / "my tool").string(), " -f TVW.map"}, path.string() + "/", Wait),
            RunResult{});
  EXPECT_EQ(std::filesystem::current_path(), before);
  std::string where, words;
  std::getline(std::ifstream(path / "where"), where);
  std::getline(std::ifstream(path / "words"), words);
  EXPECT_EQ(where, path.string());
  EXPECT_EQ(words, (path / "my tool").string() + "|-f|TVW.map");
  // A program that is named from this program's folder is found from there.
  EXPECT_EQ(processes.Run({std::filesystem::relative(path / "my tool").string(), ""}, path.string(),
                          Wait),
            RunResult{});
}

TEST_F(Folder, HoldsAProgramThatIsLeftAloneAndGoesOn) {
  WriteScript("slow", "while [ ! -e go ]; do sleep 0.01; done; echo done >end\n");
  RealProcesses processes;
  EXPECT_FALSE(processes.IsAnyLeftAlone());
  int asked = 0;
  const RunResult result =
      processes.Run({(path / "slow").string(), ""}, path.string(), [&] { return ++asked < 3; });
  EXPECT_EQ(result, (RunResult{End::LeftAlone}));
  EXPECT_EQ(asked, 3);
  EXPECT_TRUE(processes.IsAnyLeftAlone());
  std::ofstream(path / "go") << "now";
  while (processes.IsAnyLeftAlone()) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  EXPECT_TRUE(std::filesystem::exists(path / "end"));
}

}  // namespace
}  // namespace tarnview
