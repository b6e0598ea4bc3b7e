#include <gtest/gtest.h>

#include "model/IniMerge.h"

namespace tarnview {
namespace {

TEST(IniMerge, AKeyThatThisProgramDidNotChangeIsAsTheFileHoldsIt) {
  const struct {
    const char *read, *held, *inFile, *wanted;
  } kRows[] = {
      // clang-format off
      {"a=1\nb=1\n", "a=1\nb=1\n", "a=1\nb=1\n", "a=1 b=1 "},
      {"a=1\nb=1\n", "a=2\nb=1\n", "a=3\nb=3\n", "a=2 b=3 "},  // both changed a
      {"a=1\n", "a=1\n", "", ""},                              // dropped there
      {"a=1\n", "a=2\n", "", "a=2 "},
      {"a=1\nb=1\n", "b=1\n", "a=1\nb=1\n", "b=1 "},                             // dropped here
      {"", "a=1\n", "", "a=1 "},                                                 // new here
      {"a=1\nc=1\n", "a=1\nc=1\n", "0=9\na=1\nb=2\nc=1\n", "a=1 b=2 c=1 0=9 "},  // new there: in its place, else last
      // clang-format on
  };
  for (const auto& row : kRows) {
    std::string merged = MergeKeys({row.read, row.held, row.inFile});
    for (std::size_t at; (at = merged.find("\r\n")) != std::string::npos;)
      merged.replace(at, 2, " ");
    EXPECT_EQ(merged, row.wanted) << row.read << row.held << row.inFile;
  }
}

TEST(IniMerge, RecordsThatCountOnAreOneValue) {
  EXPECT_EQ(MergeWhole({"a", "a", "c"}), "c");
  EXPECT_EQ(MergeWhole({"a", "b", "c"}), "b");
}

}  // namespace
}  // namespace tarnview
