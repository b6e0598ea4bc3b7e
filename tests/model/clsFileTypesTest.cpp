#include "model/Catalogue.h"
#include "model/clsFileTypes.h"
#include "model/clsLogFamilies.h"
#include "support/Table.h"

namespace tarnview {
namespace {

class FileKindsTest : public testing::Test {
 protected:
  FileKindsTest() {
    for (int id = 1; id <= types.Count(); ++id) types.Item(id).blnEnabled = true;
  }
  FileKinds kinds = SetUpLogFamilies();
  clsFileTypes& types = kinds.gcolFileTypes;
  clsLogFamilies& families = kinds.gcolLogFamilies;
};

TEST(SetUpLogFamilies, LeavesTheTypesToBeEnabled) {
  const FileKinds kinds = SetUpLogFamilies();
  ASSERT_EQ(kinds.gcolFileTypes.Count(), 8);
  for (int id = 1; id <= 8; ++id) {
    EXPECT_FALSE(kinds.gcolFileTypes.Item(id).blnEnabled);
    EXPECT_EQ(kinds.gcolFileTypes.Item(id).lngID, id);
  }
  EXPECT_EQ(kinds.gcolFileTypes.CommonDialogFilter(), "");
}

TEST_F(FileKindsTest, FiltersNameEveryExtension) {
  EXPECT_EQ(types.Item(6).CommonDialogFilter(),
            "UTEC CSV Data Logs (*.csv;*.dat;*.txt;*.log;*.utc)|*.csv;*.dat;*.txt;*.log;*.utc");
  for (int id = 3; id <= 8; ++id) types.Item(id).blnEnabled = false;
  EXPECT_EQ(types.CommonDialogFilter(),
            "FM Link Data Logs (*.txt)|*.txt|FM Link MAP Files (*.map)|*.map");
}

TEST_F(FileKindsTest, PlacesCountEnabledTypesOnly) {
  types.Item(2).blnEnabled = false;
  EXPECT_EQ(types.SequenceFromID(1), 1);
  EXPECT_EQ(types.SequenceFromID(8), 7);
  EXPECT_EQ(types.SequenceFromID(2), 8);  // one past the end
  EXPECT_EQ(types.IDFromSequence(2), 3);
  for (const int outside : {0, -1, 8}) EXPECT_EQ(types.IDFromSequence(outside), 1);
}

TEST_F(FileKindsTest, AreGuessedFromTheExtension) {
  const auto tell = [&](const TableRow& row) {
    return std::to_string(types.GuessFileType(row.Text(0), row.Int(1)));
  };
  ExpectTable(tell, R"(
log.dat, 1 -> 6 | log.txt, 1 -> 1 | log.TXT, 7 -> 7 | log.txt, 2 -> 8 | log.map, 1 -> 2 | log.csv, 4 -> 6 | log.dat, 4 -> 4
log, 5 -> 5 | log.xyz, 5 -> 5 | a.map/log, 5 -> 5 | log.txt, 99 -> 8
)");
  types.Item(2).blnEnabled = false;
  EXPECT_EQ(types.GuessFileType("log.map", 1), 1);
}

TEST_F(FileKindsTest, LoseOneLastS) {
  EXPECT_EQ(types.Item(2).GetSingularDescription(), "FM Link MAP File");
  types.Item(8).UpdateDescription("XS", "csv");
  EXPECT_EQ(types.Item(8).strDescription, "Universal - XS");
  EXPECT_EQ(types.Item(8).GetSingularDescription(), "Universal - X");
  EXPECT_EQ(types.Item(8).strFileExtension, "csv");
  types.Item(1).UpdateDescription("A", "b");
  EXPECT_EQ(types.Item(1).strDescription, "A");
  types.Item(1).UpdateDescription("A", "b", true);
  EXPECT_EQ(types.Item(1).strDescription, "Universal - A");
}

TEST_F(FileKindsTest, IdsAreHeldToTheList) {
  EXPECT_EQ(types.ValidateFileType(0), 1);
  EXPECT_EQ(types.ValidateFileType(99), 8);
  EXPECT_EQ(families.ValidateLogFamily(-3), 1);
  EXPECT_EQ(families.ValidateLogFamily(99), 7);
  EXPECT_TRUE(types.SaveableFileType(2));
  EXPECT_FALSE(types.SaveableFileType(3));
}

TEST_F(FileKindsTest, FamiliesHoldTypes) {
  const int firstFamilies[] = {1, 1, 3, 4, 5, 6, 6, 7};
  for (int type = 1; type <= 8; ++type)
    EXPECT_EQ(families.FirstLogFamily(type), firstFamilies[type - 1]);
  EXPECT_EQ(families.FirstLogFamily(9), 0);
  EXPECT_TRUE(families.Item(2).Holds(2));
  families.Item(6).UpdateDescription("Mine");
  families.Item(7).UpdateDescription("Mine");
  EXPECT_EQ(families.Item(6).strDescription, "Mine");
  EXPECT_EQ(families.Item(7).strDescription, "Universal - Mine");
}

TEST_F(FileKindsTest, ItemsVoteForAFamily) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  const auto vote = [&](const std::vector<int>& numbers) {
    return families.LogFamilyFromDataItemCollection(numbers, catalogue.gcolFixedDataItems);
  };
  EXPECT_EQ(vote({}), 0);
  EXPECT_EQ(vote({0, 84, -1}), 0);
  EXPECT_EQ(vote({1, 3}), 1);       // a tie of all
  EXPECT_EQ(vote({47, 52, 3}), 4);  // two of the Tec-3's
  EXPECT_EQ(vote({71, 71, 2}), 6);
}

}  // namespace
}  // namespace tarnview
