// What the exit codes of the outside programs mean, and the names of new files.

#include <set>

#include "ecu/ExitCodes.h"
#include "ecu/NewFileNames.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(ExitCodes, HaveTheirTexts) {
  ExpectTable([](const TableRow& row) { return ExitCodeText(row.Int(0)); }, R"(
0 -> Normal exit., 0 | -1 -> Stop/Resume log data output command NAK'd., -1 | -2 -> Response to Stop/Resume log data output command timed out., -2 | -3 -> Unrecognized response to Stop/Resume log data output command., -3 | -4 -> Unknown Error, -4 | -5 -> Unknown Error, -5
-6 -> Unknown Error, -6 | -7 -> Store command NAK'd., -7 | -8 -> Response to Store command timed out., -8 | -9 -> Unrecognized response to Store command., -9 | -10 -> Response to Test communications readiness command for Store timed out., -10 | -11 -> Unrecognized response to Test communications readiness command for Store., -11
-12 -> Error writing to data log output file., -12 | -13 -> Error writing to zone map output file., -13 | -14 -> Error opening zone map input file., -14 | -15 -> RZONE mismatch loading zone map input file., -15 | -16 -> RDATA mismatch loading zone map input file., -16 | -17 -> Modify command for map file load NAK'd., -17
-18 -> Response to Modify command for map file loadtimed out., -18 | -19 -> Unrecognized response to Modify command for map file load., -19 | -20 -> Error reading zone map input file., -20 | -21 -> Command line option error., -21 | -22 -> Error opening comm port., -22 | -23 -> Error opening data log output file., -23
-24 -> Error opening zone map output file., -24 | -25 -> Zone map verification failed., -25 | -26 -> Zone map load aborted because engine was running., -26 | -27 -> Invalid autotune mode specified., -27 | -28 -> Autotune command NAK'd., -28 | -29 -> Response to Autotune command timed out., -29
-30 -> Unrecognized response to Autotune command., -30 | -31 -> Default map load aborted because engine was running., -31 | -32 -> Invalid default map specified., -32 | -33 -> Response to Modify command for Reload timed out., -33 | -34 -> Unrecognized response to Modify command for Reload., -34 | -35 -> Reload command NAK'd., -35
-36 -> Response to Reload command timed out., -36 | -37 -> Unrecognized response to Reload command., -37 | -38 -> Unknown Error, -38 | -39 -> Unrecognized response to Test communications readiness command for Reload., -39 | -40 -> Unknown Error, -40 | 1 -> Unknown Error, 1
-119 -> Unknown Error, -119
)");
}

TEST(NewFileNames, CountInLettersUpToFiveHundred) {
  ExpectTable(
      [](const TableRow& row) { return CounterLetters(row.Int(0)); },
      "0 -> a | 25 -> z | 26 -> ba | 51 -> bz | 52 -> ca | 499 -> tf | 675 -> zz | 676 -> baa");
  AutoFileNames names;
  std::set<std::string> taken;
  const auto isTaken = [&](const std::string& name) { return taken.contains(name); };
  // "take 1-3": the names of those counters; "24": what is proposed on that day. It never goes
  // back but with the day, and gives up where 500 are taken.
  ExpectTable(
      [&](const TableRow& row) -> std::string {
        const std::vector<std::string> words = Split(row.All(), ' ');
        if (words[0] == "used") names.Used();
        if (words[0] == "free") taken.clear();
        if (words[0] == "give") taken.erase("2026-11-24" + CounterLetters(StringToLong(words[1])));
        if (words[0] == "take")
          for (int n = StringToLong(words[1]); n < StringToLong(words[2]); ++n)
            taken.insert("2026-11-24" + CounterLetters(n));
        return names.Propose(MakeDate(2026, 11, StringToLong(words.back())), isTaken);
      },
      R"(
24 -> 2026-11-24a | 24 -> 2026-11-24a | used 24 -> 2026-11-24b | take 1 3 24 -> 2026-11-24d | free 24 -> 2026-11-24d | 25 -> 2026-11-25a | 24 -> 2026-11-24a
take 0 499 24 -> 2026-11-24tf | used 24 -> 2026-11-24tg | take 500 1000 24 ->  | give 999 24 -> 2026-11-24bml
)");
}

TEST(NewFileNames, TakeTheExtensionOfTheirType) {
  ExpectTable([](const TableRow& row) { return NameOfType(row.All(), "txt"); }, R"(
run -> run.txt | run.map -> run.txt | run.1.dat -> run.1.txt | run. -> run.txt | .map -> .txt
 -> 
)");
}

}  // namespace
}  // namespace tarnview
