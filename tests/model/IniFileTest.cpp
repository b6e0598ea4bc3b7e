#include <gtest/gtest.h>

#include "model/IniFile.h"

namespace tarnview {
namespace {

TEST(IniFile, KeepsKeysAsTheyStand) {
  const IniTable table = ReadINIFileToArray(
      "first=1\r\n[A]\nkey = a = b \n Key=2\nkey=3\n[B\nlone\n[A] \n[ C ]\nkey=4");
  EXPECT_EQ(GetINIValue(table, "", "first"), "1");
  EXPECT_EQ(GetINIValue(table, "A", "key "), "a = b");
  EXPECT_EQ(GetINIValue(table, "A", "key"), "3");
  EXPECT_EQ(GetINIValue(table, "A", " Key"), "2");
  EXPECT_EQ(GetINIValue(table, "A", "Key"), std::nullopt);
  EXPECT_EQ(GetINIValue(table, "a", "key"), std::nullopt);
  EXPECT_EQ(GetINIValue(table, "A", "[B"), "");
  EXPECT_EQ(GetINIValue(table, "A", "lone"), "");
  EXPECT_EQ(GetINIValue(table, "A", "[A] "), "");
  EXPECT_EQ(GetINIValue(table, " C ", "key"), "4");
  EXPECT_EQ(GetINIValue(ReadINIFileToArray("[A]\nk=1\nk=2"), "A", "k"), "1");
}

TEST(IniFile, TellsWhatIsNoSettingsFile) {
  const struct {
    std::string_view text;
    bool wanted;
  } kRows[] = {{"", true},           {" \r\n\r\n", true}, {"[A]", true},
               {"x=1\n[A]\n", true}, {"x=1\n", false},    {"[A\nk=1", false}};
  for (const auto& row : kRows) EXPECT_EQ(IsIniText(row.text), row.wanted) << row.text;
}

TEST(IniFile, ReadsTheInstallFileAsTheDesktopDoes) {
  const IniTable table =
      ReadINIFileToArray("[Other]\nLog EXE=no\n[GENERAL]\n log exe = \"C:\\Link Win\\L.exe\" \n");
  EXPECT_EQ(ReadProfileValue(table, "General", "Log EXE"), "C:\\Link Win\\L.exe");
  EXPECT_EQ(ReadProfileValue(table, "General", "Conversion EXE"), "");
  const IniTable longLine = ReadINIFileToArray("[General]\nk=" + std::string(300, 'x'));
  EXPECT_EQ(ReadProfileValue(longLine, "General", "k"), std::string(255, 'x'));
}

TEST(IniFile, SetsOneKeyAndLeavesTheOthers) {
  const struct {
    const char *before, *after;
  } kRows[] = {
      {"[A]\nk=1\nk=2\n[B]\nk=3", "[A]\r\nk=9\r\nk=2\r\n[B]\r\nk=3\r\n"},
      {"[A]\nkk=1\n[B]\nk=3\n", "[A]\r\nkk=1\r\nk=9\r\n[B]\r\nk=3\r\n"},
      {"[B]\nk=3\n", "[B]\r\nk=3\r\n[A]\r\nk=9\r\n"},
      {"[A]", "[A]\r\nk=9\r\n"},
      {"", "[A]\r\nk=9\r\n"},
  };
  for (const auto& row : kRows) {
    std::string text = row.before;
    SetINIValue(text, "A", "k", "9");
    EXPECT_EQ(text, row.after);
  }
}

TEST(IniFile, WritesNothingThatWouldEndALineEarly) {
  IniWriter file;
  file.Section("A");
  file.Line("k", std::string_view("one\r\n[B]\0", 9));
  EXPECT_EQ(file.Text(), "[A]\r\nk=one  [B] \r\n");
}

}  // namespace
}  // namespace tarnview
