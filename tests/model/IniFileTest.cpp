#include "model/IniFile.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(IniFile, KeepsKeysAsTheyStand) {
  const IniTable table = ReadINIFileToArray(
      "first=1\r\n[A]\nkey = a = b \n Key=2\nkey=3\n[B\nlone\n[A] \n[ C ]\nkey=4\nkey=5");
  ExpectTable(
      [&](const TableRow& row) {
        return GetINIValue(table, row.Text(0), row.Text(1)).value_or("none");
      },
      R"(
, first -> 1 | A, key  -> a = b | A, key -> 3 | A,  Key -> 2 | A, Key -> none | a, key -> none | A, [B ->  | A, lone ->  | A, [A]  ->  |  C , key -> 4
)");
}

TEST(IniFile, TellsWhatIsNoSettingsFile) {
  ExpectTable([](const TableRow& row) { return IsIniText(row.Lines()) ? "yes" : "no"; },
              " -> yes | [A] -> yes | x=1; [A] -> yes | x=1 -> no | [A; k=1 -> no");
  EXPECT_TRUE(IsIniText(" \r\n\r\n"));
}

TEST(IniFile, ReadsTheInstallFileAsTheDesktopDoes) {
  const IniTable table =
      ReadINIFileToArray("[Other]\nLog EXE=no\n[GENERAL]\n log exe = \"C:\\Link Win\\L.exe\" \nk=" +
                         std::string(300, 'x'));
  EXPECT_EQ(ReadProfileValue(table, "General", "Log EXE"), "C:\\Link Win\\L.exe");
  EXPECT_EQ(ReadProfileValue(table, "General", "Conversion EXE"), "");
  EXPECT_EQ(ReadProfileValue(table, "General", "k"), std::string(255, 'x'));
}

TEST(IniFile, SetsOneKeyAndLeavesTheOthers) {
  ExpectTable(
      [](const TableRow& row) {
        std::string text = row.Lines();
        SetINIValue(text, "A", "k", "9");
        return Join(SplitAt(text, "\r\n"), "; ");
      },
      R"(
[A]; k=1; k=2; [B]; k=3 -> [A]; k=9; k=2; [B]; k=3;  | [A]; kk=1; [B]; k=3;  -> [A]; kk=1; k=9; [B]; k=3;  | [B]; k=3;  -> [B]; k=3; [A]; k=9;  | [A] -> [A]; k=9;  |  -> [A]; k=9; 
)");
}

TEST(IniFile, WritesNothingThatWouldEndALineEarly) {
  IniWriter file;
  file.Section("A");
  file.Line("k", std::string_view("one\r\n[B]\0", 9));
  EXPECT_EQ(file.Text(), "[A]\r\nk=one  [B] \r\n");
}

}  // namespace
}  // namespace tarnview
