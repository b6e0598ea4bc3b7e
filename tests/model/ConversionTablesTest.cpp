#include <map>

#include "model/ConversionFiles.h"
#include "model/ConversionTables.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(ConversionTables, LooksUpAndInterpolates) {
  const std::map<std::string, ConversionTable> tables{
      {"O2", DefaultO2Table()},
      {"aux", DefaultAuxTable()},
      {"one", {{5, 77}}},
      {"equal ends", {{5, 77}, {9, 80}, {5, 78}}},
      {"down", {{30, 100}, {20, 200}, {0, 1000}}},
      {"uneven", {{0, 0}, {1, 10}, {2, 20}, {100, 30}, {1000, 40}}}};
  const auto tell = [&](const TableRow& row) {
    return std::to_string(TableLookup(row.Int(1), tables.at(row.Text(0)), true, false));
  };
  ExpectTable(tell, R"(
O2, 83 -> 14700 | O2, 200 -> 10900 | O2, 50 -> 14700 | O2, 85 -> 14300 | aux, 78 -> 8465 | aux, 4991 -> 19432 | aux, -1 -> 8410
aux, 624 -> 8980 | one, -3 -> 77 | one, 5 -> 77 | one, 500 -> 77 | equal ends, 7 -> 77 | down, 40 -> 100 | down, 25 -> 150
down, 10 -> 600 | down, -1 -> 1000 | uneven, 51 -> 25 | uneven, 550 -> 35 | uneven, 2 -> 20 | O2, -2147483648 -> 14700
O2, 2147483647 -> 10900
)");
  EXPECT_EQ(TableLookup(1, {}, true, false), 0);
}

TEST(ConversionTables, MatchComparesTheValueWithTheOutputs) {
  // Both inputs lie far below an air/fuel value, so the larger one is "nearer".
  EXPECT_EQ(MatchAFToO2Limitations(14600, DefaultO2Table()), 84);
  EXPECT_EQ(MatchAFToO2Limitations(11450, DefaultO2Table()), 103);
  EXPECT_EQ(MatchAFToO2Limitations(14000, DefaultO2Table()), 86);
  EXPECT_EQ(MatchAFToO2Limitations(20000, DefaultO2Table()), 83);
  EXPECT_EQ(ReturnClosest(10, 8, 12), 8);
  EXPECT_EQ(ReturnClosest(11, 8, 12), 12);
}

TEST(ConversionTables, LinearInterpolateCutsOnlyAboveAndOnlyWhenAsked) {
  EXPECT_EQ(LinearInterpolate(0, 10, 20, 100, 200, false), 300);
  EXPECT_EQ(LinearInterpolate(0, 10, 20, 100, 200, true), 200);
  EXPECT_EQ(LinearInterpolate(0, 10, -5, 100, 200, true), 50);
  EXPECT_EQ(LinearInterpolate(10, 10, 20, 100, 200, false), 100);
}

TEST(ConversionTables, TheOxygenTableHoldsItsInput) {
  EXPECT_EQ(OxygenTableOutput(0), 15000);
  EXPECT_EQ(OxygenTableOutput(62), 14700);
  EXPECT_EQ(OxygenTableOutput(999), 11000);
}

TEST(ConversionTables, ParsesRowsAndSkipsWhatIsNone) {
  EXPECT_EQ(ParseConversionTable(
                " tarnview Conversion Table \r\n1=10\n=5\n5=\n\nhello\n 2.5 = 3.5x\n3=4=5"),
            (ConversionTable{{1, 10}, {2, 4}, {3, 4}}));
  EXPECT_EQ(ParseConversionTable("TARNVIEW AUX INPUT CONVERSION TABLE\n0=1\n"),
            (ConversionTable{{0, 1}}));
  EXPECT_TRUE(ParseConversionTable("TARNVIEW TABLE\n1=2\n").empty());
  EXPECT_TRUE(ParseConversionTable("").empty());
}

class ConversionFilesTest : public testing::Test {
 protected:
  MemoryFileSystem files;
  std::vector<Message> told;
  FixedClock clock;
  ErrorLog log{files, clock, "error.log"};
  ConversionFiles conversions{files, [this](Message id, const std::string&) { told.push_back(id); },
                              log};
};

TEST_F(ConversionFilesTest, FallsBackToTheDefaultAndTellsOnlyOfAnUnreadableFile) {
  const ConversionTable defaults{{7, 8}};
  files.files = {{"good.txt", "TARNVIEW CONVERSION TABLE\n1=2\n"},
                 {"heading.txt", "TARNVIEW CONVERSION TABLE\n"},
                 {"wrong.txt", "something\n1=2\n"},
                 {"broken.txt", "TARNVIEW CONVERSION TABLE\n1=2\n"}};
  files.broken.insert("broken.txt");
  EXPECT_EQ(conversions.LoadConversionTable("good.txt", defaults), (ConversionTable{{1, 2}}));
  for (const char* path : {"", "missing.txt", "heading.txt", "wrong.txt"})
    EXPECT_EQ(conversions.LoadConversionTable(path, defaults), defaults) << path;
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(conversions.LoadConversionTable("broken.txt", defaults), defaults);
  EXPECT_EQ(told, std::vector{Message::ConversionFileNotLoaded});
  EXPECT_NE(files.files["error.log"].find("/modTarnview/LoadConversionTable"), std::string::npos);
}

TEST_F(ConversionFilesTest, ReadsAgainOnlyWhenTheFlagIsSet) {
  files.files = {{"o2.txt", "TARNVIEW CONVERSION TABLE\n1=2\n"}};
  ConversionTables tables;
  conversions.LoadO2ConvFile(tables, "o2.txt");
  conversions.LoadAuxInputConvFile(tables, "");
  EXPECT_FALSE(tables.reloadO2 || tables.reloadAux);
  EXPECT_EQ(tables.Aux, DefaultAuxTable());
  files.files["o2.txt"] = "TARNVIEW CONVERSION TABLE\n3=4\n";
  conversions.LoadO2ConvFile(tables, "o2.txt");
  EXPECT_EQ(tables.O2, (ConversionTable{{1, 2}}));
}

}  // namespace
}  // namespace tarnview
