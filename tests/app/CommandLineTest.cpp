#include "app/CommandLine.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(CommandLine, TakesAPathAndATypeBehindTheLastBar) {
  ExpectTable(
      [](const TableRow& row) {
        const CommandLineFile file = ParseCommandLine(row.All());
        return file.path + ", " + (file.fileType ? std::to_string(*file.fileType) : "none");
      },
      R"(
 -> , none
  "run one.txt"  -> run one.txt, none
run.txt|5 -> run.txt, 5
a|b.txt|2 -> a|b.txt, 2
run.txt| -> run.txt, 0
"run.txt|x" -> run.txt, 0
)");
}

}  // namespace
}  // namespace tarnview
