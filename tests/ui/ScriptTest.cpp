#include <gtest/gtest.h>

#include <sstream>

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

TEST(Script, ComesLineByLineAndEnds) {
  std::istringstream stream("one\r\n\ntwo\n");
  for (const ScriptSource& next : {FromLines(ParseScript("one\n#\ntwo")), FromStream(stream)}) {
    EXPECT_EQ(next()->words, Words{"one"});
    const auto second = next();
    EXPECT_EQ(second->words[0] + std::to_string(second->number), "two3");
    EXPECT_FALSE(next());
    EXPECT_FALSE(next());
  }
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
