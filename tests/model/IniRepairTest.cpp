#include <gtest/gtest.h>

#include <algorithm>

#include "model/IniRepair.h"

namespace tarnview {
namespace {

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
