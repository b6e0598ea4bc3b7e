#include <gtest/gtest.h>

#include "app/CommandLine.h"

namespace tarnview {
namespace {

TEST(CommandLine, TakesAPathAndATypeBehindTheLastBar) {
  const struct {
    const char* text;
    const char* path;
    std::optional<int> fileType;
  } kRows[] = {
      {"", "", {}},
      {"  \"run one.txt\" ", "run one.txt", {}},
      {"run.txt|5", "run.txt", 5},
      {"a|b.txt|2", "a|b.txt", 2},
      {"run.txt|", "run.txt", 0},
      {"\"run.txt|x\"", "run.txt", 0},
  };
  for (const auto& row : kRows) {
    const CommandLineFile file = ParseCommandLine(row.text);
    EXPECT_EQ(file.path, row.path) << row.text;
    EXPECT_EQ(file.fileType, row.fileType) << row.text;
  }
}

}  // namespace
}  // namespace tarnview
