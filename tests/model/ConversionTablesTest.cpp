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
    if (row.Text(0) == "oxygen") return std::to_string(OxygenTableOutput(row.Int(1)));
    if (row.Text(0) == "match")
      return std::to_string(MatchAFToO2Limitations(row.Int(1), DefaultO2Table()));
    return std::to_string(TableLookup(row.Int(1), tables.at(row.Text(0)), true, false));
  };
  ExpectTable(tell, R"(
O2, 83 -> 14700 | O2, 200 -> 10900 | O2, 50 -> 14700 | O2, 85 -> 14300 | aux, 78 -> 8465 | aux, 4991 -> 19432 | aux, -1 -> 8410
aux, 624 -> 8980 | one, -3 -> 77 | one, 5 -> 77 | one, 500 -> 77 | equal ends, 7 -> 77 | down, 40 -> 100 | down, 25 -> 150
down, 10 -> 600 | down, -1 -> 1000 | uneven, 51 -> 25 | uneven, 550 -> 35 | uneven, 2 -> 20 | O2, -2147483648 -> 14700
O2, 2147483647 -> 10900 | oxygen, 0 -> 15000 | oxygen, 62 -> 14700 | oxygen, 999 -> 11000
# It compares the value with the outputs: both inputs lie far below an air/fuel value, so the larger one is "nearer".
match, 14600 -> 84 | match, 11450 -> 103 | match, 14000 -> 86 | match, 20000 -> 83
)");
  EXPECT_EQ(TableLookup(1, {}, true, false), 0);
  EXPECT_EQ(ReturnClosest(10, 8, 12), 8);
  EXPECT_EQ(ReturnClosest(11, 8, 12), 12);
}

TEST(ConversionTables, LinearInterpolateCutsOnlyAboveAndOnlyWhenAsked) {
  EXPECT_EQ(LinearInterpolate(0, 10, 20, 100, 200, false), 300);
  EXPECT_EQ(LinearInterpolate(0, 10, 20, 100, 200, true), 200);
  EXPECT_EQ(LinearInterpolate(0, 10, -5, 100, 200, true), 50);
  EXPECT_EQ(LinearInterpolate(10, 10, 20, 100, 200, false), 100);
}

std::string Told(const ConversionTable& table) {
  std::string told;
  for (const auto& [input, output] : table)
    told += (told.empty() ? "" : " ") + std::to_string(input) + "=" + std::to_string(output);
  return told;
}

struct Disk {
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog log{files, clock, "error.log"};
  std::string told;
  ConversionFiles conversions{files,
                              [this](Message id, const std::string&) {
                                told += " message " + std::to_string(static_cast<int>(id));
                              },
                              log};
};

/// What is read of a file, 7=8 where it is none; it is told only of one that cannot be read.
TEST(ConversionFiles, ReadRowsAndSkipWhatIsNone) {
  ExpectTable(
      [](const TableRow& row) {
        Disk disk;
        auto& files = disk.files.files;
        if (row.All() != "none") files["a.txt"] = row.Lines();
        if (row.All() == "broken") disk.files.broken.insert("a.txt");
        const std::string table = Told(disk.conversions.LoadConversionTable("a.txt", {{7, 8}}));
        if (files["error.log"].find("/modTarnview/LoadConversionTable") != std::string::npos)
          disk.told += " logged";
        return table + disk.told;
      },
      R"(
 tarnview Conversion Table ; 1=10; =5; 5=; ; hello;  2.5 = 3.5x; 3=4=5 -> 1=10 2=4 3=4
TARNVIEW AUX INPUT CONVERSION TABLE; 0=1 -> 0=1
TARNVIEW TABLE; 1=2 -> 7=8 | TARNVIEW CONVERSION TABLE -> 7=8 |  -> 7=8 | none -> 7=8 | broken -> 7=8 message 4 logged
)");
}

TEST(ConversionFiles, AreReadAgainOnlyWhenTheFlagIsSet) {
  Disk disk;
  ConversionTables tables;
  for (const char* row : {"1=2", "3=4"}) {
    disk.files.files["o2.txt"] = std::string("TARNVIEW CONVERSION TABLE\n") + row;
    disk.conversions.LoadO2ConvFile(tables, "o2.txt");
    disk.conversions.LoadAuxInputConvFile(tables, row[0] == '1' ? "" : "o2.txt");
    EXPECT_EQ(Told(tables.O2), "1=2");
    EXPECT_EQ(tables.Aux, DefaultAuxTable());
  }
}

}  // namespace
}  // namespace tarnview
