#include <algorithm>

#include "model/IniRepair.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(IniRepair, WhatCanBeToldOfALineStays) {
  const std::vector<std::string> headings{"General", "Graphs"};
  const auto repaired = [&](std::string text) {
    std::replace(text.begin(), text.end(), '#', '\0');
    std::replace(text.begin(), text.end(), '^', '\r');
    return WithoutDamage(text, headings);
  };
  ExpectTable(
      [&](const TableRow& row) { return Join(SplitAt(repaired(row.Lines()), "\r\n"), "; "); }, R"(
[Gene#al]; k=1;  -> [General]; k=1;  | #General]; k=1;  -> [General]; k=1;  | [#####al]; k=1;  -> [?????al]; k=1;  | [Oth#r]; k=1;  -> [Oth?r]; k=1; 
# half a line end
a=1^#b=2^; c=3#;  -> a=1; b=2; c=3; 
n=12#4; t=a#c;  -> t=a?c;  | Only#ne=1;  -> 
[Graphs]; Graph 1 Name=A; Gr#ph 2 Name=B; Graph 3 Name=C;  -> [Graphs]; Graph 1 Name=A; Graph 2 Name=B; Graph 3 Name=C;  | [Graphs]; Graph 1 Name=A; Graph # Name=B;  -> [Graphs]; Graph 1 Name=A; Graph 0 Name=B; 
# without it the records behind would not be found
Graph 1 Name=M#ne;  -> Graph 1 Name=M?ne; 
Graph 1 Name=A; Gr#ph 25 N#me=B; Graph 30#=C; Gr#ph 1 Name=D;  -> Graph 1 Name=A; Graph 25 Name=B;  | Graph 1 Name=A; Gr#ph 2 Size=B; Cr#ps 2 Name=C;  -> Graph 1 Name=A; 
[Graphs]; Car 1 x=1; C#r 2 x=2; [General]; Car 1 y=1; C#r 2 y=2;  -> [Graphs]; Car 1 x=1; Car 2 x=2; [General]; Car 1 y=1; Car 2 y=2; 
)");
  EXPECT_EQ(repaired("[General]\nk=1"), "[General]\nk=1") << "no damage, untouched";
  // Nobody waits for a file of nothing but damage.
  std::string many = "Graph 1 Name=A\r\n";
  for (int line = 0; line < 1001; ++line) many += "Gr#ph 2 Name=B\r\n";
  EXPECT_EQ(repaired(many).size(), std::string("Graph 1 Name=A\r\n").size() * 1001);
}

}  // namespace
}  // namespace tarnview
