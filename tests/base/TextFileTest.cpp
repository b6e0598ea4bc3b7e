#include <gtest/gtest.h>

#include "base/TextFile.h"

namespace tarnview {
namespace {

TEST(TextFile, HasNoMarkInFrontAndItsLinesEndInLF) {
  const struct {
    const char *file, *text;
  } kRows[] = {
      {"", ""},
      {"\xEF\xBB\xBF", ""},
      {"\xEF\xBB\xBFRPM\r\n1\r\n", "RPM\r\n1\r\n"},
      {"RPM\r1\r", "RPM\n1\n"},
      {"RPM\r1\n", "RPM\r1\n"},  // with a LF, a CR is one character more
      {"\xEF\xBB\xBFRPM\r1", "RPM\n1"},
  };
  for (const auto& row : kRows) {
    FileBytes bytes(row.file);
    SettleText(bytes);
    EXPECT_EQ(bytes, row.text) << row.file;
  }
}

TEST(TextFile, ALineOfMoreThan16MBIsNone) {
  const std::string longest(kLongestLine, 'x'), tooLong = longest + "x";
  EXPECT_TRUE(HasLines(""));
  EXPECT_TRUE(HasLines(longest));
  EXPECT_TRUE(HasLines(longest + "\n" + longest + "\n"));
  EXPECT_FALSE(HasLines(tooLong));
  EXPECT_FALSE(HasLines(longest + "\n" + tooLong + "\n"));
}

}  // namespace
}  // namespace tarnview
