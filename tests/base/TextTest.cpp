#include <gtest/gtest.h>

#include "base/Text.h"

namespace tarnview {
namespace {

TEST(Text, IsTrimmed) {
  EXPECT_EQ(Trim("  a b "), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(TrimControlCharacters(" \t\r\n\x01 a\tb \x1f"), "a\tb");
  EXPECT_EQ(TrimControlCharacters("\xe9 "), "\xe9");
  EXPECT_EQ(StripQuotes("\"a\"b\""), "a\"b");
  EXPECT_EQ(StripQuotes("\""), "");
  EXPECT_EQ(OrElse("", "b") + OrElse("a", "b"), "ba");
}

TEST(Text, LosesSpecifiedCharsOnceAtEachEnd) {
  EXPECT_EQ(TrimSpecifiedChars("--a--", "-"), "-a-");
  EXPECT_EQ(TrimSpecifiedChars("--", "--"), "--");
  EXPECT_EQ(TrimSpecifiedChars("----", "--"), "");
  EXPECT_EQ(TrimSpecifiedChars("ab-", "-"), "ab");
}

TEST(Text, IsTakenApartIntoLines) {
  std::string_view rest = "one\r\n\ntw\ro\r\nlast\r", line;
  std::vector<std::string> lines;
  while (TakeLine(rest, line)) lines.emplace_back(line);
  EXPECT_EQ(lines, (std::vector<std::string>{"one", "", "tw\ro", "last"}));
}

TEST(Text, IsSplitJoinedAndSorted) {
  EXPECT_EQ(Split("a,,b,", ','), (std::vector<std::string>{"a", "", "b", ""}));
  EXPECT_TRUE(Split("", ',').empty());
  EXPECT_EQ(Join({"a", "", "b"}, ", "), "a, , b");
  EXPECT_EQ(Join({Counted(0, "log"), Counted(1, "log"), Counted(2, "log")}, ", "),
            "0 logs, 1 log, 2 logs");
  EXPECT_TRUE(SameIgnoringCase("aBc", "AbC"));
  EXPECT_FALSE(SameIgnoringCase("aBc", "AbCd"));

  std::vector<std::vector<std::string>> table{
      {"head", "z"}, {"2", "c"}, {"1", "a"}, {"3"}, {"4", "a"}};
  Sort2DStringArray(table, 1, 1);
  EXPECT_EQ(table, (std::vector<std::vector<std::string>>{
                       {"head", "z"}, {"3"}, {"1", "a"}, {"4", "a"}, {"2", "c"}}));
}

TEST(Text, HasCapitalsBeyondAsciiInEitherEncoding) {
  const struct {
    const char *text, *upper, *key;
  } kRows[] = {
      {"a\xe4z9", "A\xc4Z9", "A\u00c4Z9"},                           // Windows-1252
      {"Temp\u00e9rature", "TEMP\u00c9RATURE", "TEMP\u00c9RATURE"},  // UTF-8
      {"Temp\xe9rature", "TEMP\xc9RATURE", "TEMP\u00c9RATURE"},
      {"\xff\x9a\xf7\xdf", "\x9f\x8a\xf7\xdf", "\u0178\u0160\u00f7\u00df"},
      {"\u0161\u0142\u017e \u03c9 \u044f\u0451 \U0010f600",
       "\u0160\u0141\u017d \u03a9 \u042f\u0401 \U0010f600",
       "\u0160\u0141\u017d \u03a9 \u042f\u0401 \U0010f600"},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(Upper(row.text), row.upper);
    EXPECT_EQ(CaseKey(row.text), row.key);
  }
  EXPECT_TRUE(SameIgnoringCase("\u00e9", "\xc9"));
  EXPECT_FALSE(SameIgnoringCase("\u00e9", "E"));
}

TEST(Text, IsShortenedBehindAWholeCharacter) {
  EXPECT_EQ(Shortened("abcdef", 6), "abcdef");
  EXPECT_EQ(Shortened("abcdefg", 6), "abc...");
  EXPECT_EQ(Shortened("ab\u20accdef", 7), "ab...");
}

TEST(Text, GoesThroughUnicodeAndBack) {
  EXPECT_EQ(ToUtf8("\x80 \xe9 a"), "\u20ac \u00e9 a");
  EXPECT_EQ(FromUtf8("\u20ac \u00e9 \u0416 \xff \xe2\x82"), "\x80 \xe9 ? ? ??");
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
  EXPECT_EQ(ShownAsUtf8("/j\xc3\xb6rg/\xe2\x82\xac.txt, 5 \xb0"
                        "C, \x80\xc3"),
            "/j\u00f6rg/\u20ac.txt, 5 \u00b0C, \u20ac\u00c3");
}

}  // namespace
}  // namespace tarnview
