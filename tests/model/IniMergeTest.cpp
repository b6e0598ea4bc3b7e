#include "model/IniMerge.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(IniMerge, AKeyThatThisProgramDidNotChangeIsAsTheFileHoldsIt) {
  // keys as they were read, as they are held, as they are in the file now
  ExpectTable(
      [](const TableRow& row) {
        const auto lines = [&](std::size_t n) {
          return row.Text(n).empty() ? "" : Join(Split(row.Text(n), ' '), "\n") + "\n";
        };
        return Join(SplitAt(MergeKeys({lines(0), lines(1), lines(2)}), "\r\n"), " ");
      },
      R"(
a=1 b=1, a=1 b=1, a=1 b=1 -> a=1 b=1 
# both changed a
a=1 b=1, a=2 b=1, a=3 b=3 -> a=2 b=3 
# dropped there and here
a=1, a=1,  ->  | a=1, a=2,  -> a=2  | a=1 b=1, b=1, a=1 b=1 -> b=1 
# new here; new there, in its place, else last
, a=1,  -> a=1  | a=1 c=1, a=1 c=1, 0=9 a=1 b=2 c=1 -> a=1 b=2 c=1 0=9 
)");
}

TEST(IniMerge, RecordsThatCountOnAreOneValue) {
  EXPECT_EQ(MergeWhole({"a", "a", "c"}), "c");
  EXPECT_EQ(MergeWhole({"a", "b", "c"}), "b");
}

}  // namespace
}  // namespace tarnview
