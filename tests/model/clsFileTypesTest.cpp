#include "model/Catalogue.h"
#include "model/clsFileTypes.h"
#include "model/clsLogFamilies.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// What comes of a verb, a number, and what else it takes.
std::string Told(FileKinds& kinds, const TableRow& row) {
  clsFileTypes& types = kinds.gcolFileTypes;
  clsLogFamilies& families = kinds.gcolLogFamilies;
  const std::string& verb = row.Text(0);
  const int number = row.Count() > 1 ? row.Int(1) : 0;
  std::vector<int> numbers;
  for (std::size_t n = 1; n < row.Count(); ++n) numbers.push_back(row.Int(n));
  if (verb == "enable" || verb == "disable") {
    for (const int id : numbers) types.Item(id).blnEnabled = verb == "enable";
    return types.CommonDialogFilter();
  }
  if (verb == "call") types.Item(number).UpdateDescription(row.Text(2), "b");
  if (verb == "call by force") types.Item(number).UpdateDescription(row.Text(2), "b", true);
  if (verb.starts_with("call") || verb == "type")
    return types.Item(number).strDescription + ", " + types.Item(number).GetSingularDescription() +
           ", " + types.Item(number).CommonDialogFilter();
  if (verb == "family called") families.Item(number).UpdateDescription(row.Text(2));
  if (verb == "family called") return families.Item(number).strDescription;
  if (verb == "place of") return std::to_string(types.SequenceFromID(number));
  if (verb == "at place") return std::to_string(types.IDFromSequence(number));
  if (verb == "guess") return std::to_string(types.GuessFileType(row.Text(2), number));
  if (verb == "held")
    return std::to_string(types.ValidateFileType(number)) + " " +
           std::to_string(families.ValidateLogFamily(number));
  if (verb == "family of")
    return std::to_string(families.FirstLogFamily(number)) +
           (types.SaveableFileType(number) ? " saveable" : "");
  const Catalogue catalogue = BuildDataItemCatalogue();
  return std::to_string(
      families.LogFamilyFromDataItemCollection(numbers, catalogue.gcolFixedDataItems));
}

TEST(FileKinds, AsTheyAreSetUp) {
  FileKinds kinds = SetUpLogFamilies();
  ASSERT_EQ(kinds.gcolFileTypes.Count(), 8);
  for (int id = 1; id <= 8; ++id) EXPECT_EQ(kinds.gcolFileTypes.Item(id).lngID, id);
  EXPECT_EQ(kinds.gcolFileTypes.CommonDialogFilter(), "");
  EXPECT_TRUE(kinds.gcolLogFamilies.Item(2).Holds(2));
  // One row after the other. A vote of items is for a family, the first one on a tie of all.
  ExpectTable([&](const TableRow& row) { return Told(kinds, row); }, R"(
enable, 2 -> FM Link MAP Files (*.map)|*.map | enable, 1 -> FM Link Data Logs (*.txt)|*.txt|FM Link MAP Files (*.map)|*.map | at place, 2 -> 2 | at place, 3 -> 1 | at place, 0 -> 1
enable, 3, 4, 5, 6, 7, 8 -> FM Link Data Logs (*.txt)|*.txt|FM Link MAP Files (*.map)|*.map|Tec-2 Data Logs (*.dat)|*.dat|Tec-3 Data Logs (*.dat)|*.dat|LinkPlus Data Logs (*.txt)|*.txt|UTEC CSV Data Logs (*.csv;*.dat;*.txt;*.log;*.utc)|*.csv;*.dat;*.txt;*.log;*.utc|UTEC Fixed-Width Data Logs (*.txt)|*.txt|Universal Data Logs (*.txt)|*.txt
guess, 1, log.dat -> 6 | guess, 1, log.txt -> 1 | guess, 7, log.TXT -> 7 | guess, 2, log.txt -> 8 | guess, 1, log.map -> 2 | guess, 4, log.csv -> 6 | guess, 4, log.dat -> 4 | guess, 5, log -> 5 | guess, 5, log.xyz -> 5 | guess, 5, a.map/log -> 5 | guess, 99, log.txt -> 8
disable, 2 -> FM Link Data Logs (*.txt)|*.txt|Tec-2 Data Logs (*.dat)|*.dat|Tec-3 Data Logs (*.dat)|*.dat|LinkPlus Data Logs (*.txt)|*.txt|UTEC CSV Data Logs (*.csv;*.dat;*.txt;*.log;*.utc)|*.csv;*.dat;*.txt;*.log;*.utc|UTEC Fixed-Width Data Logs (*.txt)|*.txt|Universal Data Logs (*.txt)|*.txt
guess, 1, log.map -> 1 | place of, 1 -> 1 | place of, 8 -> 7 | place of, 2 -> 8 | at place, 2 -> 3 | at place, 0 -> 1 | at place, -1 -> 1 | at place, 8 -> 1
type, 2 -> FM Link MAP Files, FM Link MAP File, FM Link MAP Files (*.map)|*.map | call, 8, XS -> Universal - XS, Universal - X, Universal - XS (*.b)|*.b | call, 1, A -> A, A, A (*.b)|*.b | call by force, 1, A -> Universal - A, Universal - A, Universal - A (*.b)|*.b | family called, 6, Mine -> Mine | family called, 7, Mine -> Universal - Mine
held, 0 -> 1 1 | held, 99 -> 8 7 | held, -3 -> 1 1 | held, 5 -> 5 5
family of, 1 -> 1 saveable | family of, 2 -> 1 saveable | family of, 3 -> 3 | family of, 4 -> 4 | family of, 5 -> 5 | family of, 6 -> 6 | family of, 7 -> 6 | family of, 8 -> 7 | family of, 9 -> 0
vote -> 0 | vote, 0, 84, -1 -> 0 | vote, 1, 3 -> 1 | vote, 47, 52, 3 -> 4 | vote, 71, 71, 2 -> 6
)");
}

}  // namespace
}  // namespace tarnview
