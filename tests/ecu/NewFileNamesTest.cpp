#include <gtest/gtest.h>

#include <set>

#include "ecu/NewFileNames.h"

namespace tarnview {
namespace {

TEST(NewFileNames, CountInLetters) {
  const std::pair<int, const char*> kRows[] = {{0, "a"},    {1, "b"},     {25, "z"},   {26, "ba"},
                                               {27, "bb"},  {51, "bz"},   {52, "ca"},  {499, "tf"},
                                               {675, "zz"}, {676, "baa"}, {677, "bab"}};
  for (const auto& [counter, letters] : kRows)
    EXPECT_EQ(CounterLetters(counter), letters) << counter;
}

TEST(NewFileNames, AreProposedByDayAndCounter) {
  AutoFileNames names;
  std::set<std::string> taken;
  int asked = 0;
  const auto propose = [&](int day) {
    asked = 0;
    return names.Propose(MakeDate(2026, 11, day), [&](const std::string& name) {
      ++asked;
      return taken.contains(name);
    });
  };
  EXPECT_EQ(propose(24), "2026-11-24a");
  EXPECT_EQ(propose(24), "2026-11-24a");
  names.Used();
  EXPECT_EQ(propose(24), "2026-11-24b");
  taken = {"2026-11-24b", "2026-11-24c"};
  EXPECT_EQ(propose(24), "2026-11-24d");
  taken.clear();
  EXPECT_EQ(propose(24), "2026-11-24d");
  EXPECT_EQ(propose(25), "2026-11-25a");
  EXPECT_EQ(propose(24), "2026-11-24a");

  for (int counter = 0; counter < 499; ++counter)
    taken.insert("2026-11-24" + CounterLetters(counter));
  EXPECT_EQ(propose(24), "2026-11-24tf");
  EXPECT_EQ(asked, 500);
  names.Used();
  for (int counter = 499; counter < 1000; ++counter)
    taken.insert("2026-11-24" + CounterLetters(counter));
  EXPECT_EQ(propose(24), "");
  EXPECT_EQ(asked, 500);
  taken.erase("2026-11-24tg");  // where the counter stands
  EXPECT_EQ(propose(24), "2026-11-24tg");
}

TEST(NewFileNames, AreLegalWithoutTheseCharacters) {
  for (const char c : std::string("\\/:*?<>|\""))
    EXPECT_FALSE(IsLegalFileName(std::string("a") + c + "b")) << c;
  EXPECT_TRUE(IsLegalFileName("My run (2), 98'.5.txt"));
}

TEST(NewFileNames, TakeTheExtensionOfTheirType) {
  struct Row {
    const char *name, *extension, *wanted;
  };
  for (const Row& row : {Row{"run", "txt", "run.txt"}, Row{"run.txt", "map", "run.map"},
                         Row{"run.1.dat", "txt", "run.1.txt"}, Row{"run.", "txt", "run.txt"},
                         Row{".map", "txt", ".txt"}, Row{"", "txt", ""}})
    EXPECT_EQ(NameOfType(row.name, row.extension), row.wanted);
}

}  // namespace
}  // namespace tarnview
