// A byte lost anywhere in a settings file costs the line that it stood in, and no other.

#include <gtest/gtest.h>

#include <algorithm>

#include "app/FullSettings.h"
#include "app/SettingsSections.h"
#include "model/IniRepair.h"

namespace tarnview {
namespace {

std::vector<std::string> RowsOf(const std::string& text) {
  std::vector<std::string> rows;
  const IniTable table = ReadINIFileToArray(text);
  for (const IniRow& row : table.Rows())
    rows.push_back(row.section + "/" + row.key + "=" + row.value);
  std::sort(rows.begin(), rows.end());
  return rows;
}

TEST(IniRepair, AByteLostAnywhereCostsItsOwnLineAtMost) {
  const std::string whole = FullSettings();
  const auto rows = RowsOf(whole);
  const auto headings = SettingsHeadings();
  for (std::size_t at = 0; at < whole.size(); at += 97) {
    std::string damaged = whole;
    damaged[at] = '\0';
    const std::string repaired = WithoutDamage(damaged, headings);
    std::vector<std::string> lost;
    const auto kept = RowsOf(repaired);
    std::set_difference(rows.begin(), rows.end(), kept.begin(), kept.end(),
                        std::back_inserter(lost));
    ASSERT_LE(lost.size(), 1u) << "byte " << at << " of " << whole.substr(at, 20);
    ASSERT_EQ(repaired.find('\0'), std::string::npos);
  }
}

TEST(IniRepair, WhatCanBeToldOfALineStays) {
  const std::vector<std::string> headings{"General", "Graphs"};
  const auto repaired = [&](std::string text) {
    std::replace(text.begin(), text.end(), '#', '\0');
    return WithoutDamage(text, headings);
  };
  const struct {
    const char *damaged, *wanted;
  } kRows[] = {
      // clang-format off
      {"[General]\nk=1", "[General]\nk=1"},  // untouched
      {"[Gene#al]\nk=1\n", "[General]\r\nk=1\r\n"},
      {"#General]\nk=1\n", "[General]\r\nk=1\r\n"},
      {"[#####al]\nk=1\n", "[?????al]\r\nk=1\r\n"},
      {"[Oth#r]\nk=1\n", "[Oth?r]\r\nk=1\r\n"},
      {"a=1\r#b=2\r\nc=3#\n", "a=1\r\nb=2\r\nc=3\r\n"},  // half a line end
      {"n=12#4\nt=a#c\n", "t=a?c\r\n"},
      {"[Graphs]\nGraph 1 Name=A\nGr#ph 2 Name=B\nGraph 3 Name=C\n",
       "[Graphs]\r\nGraph 1 Name=A\r\nGraph 2 Name=B\r\nGraph 3 Name=C\r\n"},
      {"[Graphs]\nGraph 1 Name=A\nGraph # Name=B\n", "[Graphs]\r\nGraph 1 Name=A\r\nGraph 0 Name=B\r\n"},
      {"Graph 1 Name=M#ne\n", "Graph 1 Name=M?ne\r\n"},  // without it the records behind would not be found
      {"Only#ne=1\n", ""},
      {"Graph 1 Name=A\nGr#ph 25 N#me=B\nGraph 30#=C\nGr#ph 1 Name=D\n",
       "Graph 1 Name=A\r\nGraph 25 Name=B\r\n"},
      {"Graph 1 Name=A\nGr#ph 2 Size=B\nCr#ps 2 Name=C\n", "Graph 1 Name=A\r\n"},
      {"[Graphs]\nCar 1 x=1\nC#r 2 x=2\n[General]\nCar 1 y=1\nC#r 2 y=2\n",
       "[Graphs]\r\nCar 1 x=1\r\nCar 2 x=2\r\n[General]\r\nCar 1 y=1\r\nCar 2 y=2\r\n"},
      // clang-format on
  };
  for (const auto& row : kRows) EXPECT_EQ(repaired(row.damaged), row.wanted) << row.damaged;
  // Nobody waits for a file of nothing but damage.
  std::string many = "Graph 1 Name=A\r\n";
  for (int line = 0; line < 1001; ++line) many += "Gr#ph 2 Name=B\r\n";
  EXPECT_EQ(repaired(many).size(), std::string("Graph 1 Name=A\r\n").size() * 1001);
}

}  // namespace
}  // namespace tarnview
