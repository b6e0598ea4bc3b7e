#include <gtest/gtest.h>

#include "ui/Script.h"

namespace tarnview {
namespace {

using Words = std::vector<std::string>;

TEST(Script, SplitsWordsAndPassesCommentsOver) {
  const auto lines = ParseScript(
      "# first\r\n\r\n  type txtName  \"a \\\"b\\\" \\\\ c\\nd\"\r\nchoose cboX #2\n\"\"");
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].number, 3);
  EXPECT_EQ(lines[0].words, (Words{"type", "txtName", "a \"b\" \\ c\nd"}));
  EXPECT_EQ(lines[1].words, (Words{"choose", "cboX", "#2"}));
  EXPECT_EQ(lines[2].words, (Words{""}));
}

TEST(Script, AnOpenQuoteNamesItsLine) {
  try {
    ParseScript("show\ntype a \"b\n");
    FAIL();
  } catch (const ScriptError& error) {
    EXPECT_EQ(error.line, 2);
  }
}

}  // namespace
}  // namespace tarnview
