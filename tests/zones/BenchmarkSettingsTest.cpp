#include "support/Table.h"
#include "zones/BenchmarkSettings.h"
#include "zones/ZoneTexts.h"

namespace tarnview {
namespace {

clsBenchmarks Read(const std::string& lines) {
  clsBenchmarks benchmarks;
  ReadBenchmarks(ReadINIFileToArray("[Benchmarks]\n" + lines), OwnChip(), benchmarks);
  return benchmarks;
}

std::string Written(const clsBenchmarks& benchmarks) {
  IniWriter file;
  WriteBenchmarks(benchmarks, file);
  return file.Text();
}

/// What is missing is the user's own, a gap ends the list, and a list of none is the emergency's.
TEST(BenchmarkSettings, ReadAndWrittenAgain) {
  // lines of the file; what is written, but for the zones behind the first 16
  ExpectTable(
      [](const TableRow& row) {
        std::string told;
        for (const std::string& line : SplitAt(Written(Read(row.Lines())), "\r\n"))
          if (line.find("Data Line ") == line.find("Data Line 0")) told += line + "; ";
        return told;
      },
      R"(
 -> Benchmark 1 Name=Emergency Benchmark; Benchmark 1 File=Emergency Benchmark; Benchmark 1 Engine Size=1.8; Benchmark 1 Chip Date=2001-09-18; Benchmark 1 Chip Version=3; Benchmark 1 Atmospheric Pressure=99; Benchmark 1 Data Line 0= 000 000 000 000 000 000 000 000 000 000 000 000 000 000 000 000; ; 
Benchmark 1 Name=; Benchmark 1 Engine Size=; Benchmark 2 Name=Two; Benchmark 2 File=a.map; Benchmark 2 Engine Size=1.6; Benchmark 2 Chip Date=2000-01-01; Benchmark 2 Chip Version=1; Benchmark 2 Atmospheric Pressure=85; Benchmark 4 Name=Behind a gap -> Benchmark 1 Name=Benchmark 1; Benchmark 1 File=Benchmark 1; Benchmark 1 Engine Size=1.8; Benchmark 1 Chip Date=2001-09-18; Benchmark 1 Chip Version=3; Benchmark 1 Atmospheric Pressure=99; Benchmark 1 Data Line 0= 000 000 000 000 000 000 000 000 000 000 000 000 000 000 000 000; Benchmark 2 Name=Two; Benchmark 2 File=a.map; Benchmark 2 Engine Size=1.6; Benchmark 2 Chip Date=2000-01-01; Benchmark 2 Chip Version=1; Benchmark 2 Atmospheric Pressure=85; Benchmark 2 Data Line 0= 000 000 000 000 000 000 000 000 000 000 000 000 000 000 000 000; ; 
)");
}

TEST(BenchmarkSettings, AllZonesComeBackTheUnknownOnesToo) {
  clsBenchmarks benchmarks = Read("Benchmark 1 Name=A\n");
  clsBenchmark& one = benchmarks.Item(1);
  for (int zone = 0; zone < 256; ++zone)
    one.ZoneSettings(zone) = static_cast<std::int16_t>(255 - zone);
  for (const int unknown : {0, 17, 47, 255}) one.ZoneSettings(unknown) = -1;
  const clsBenchmarks again = Read(Written(benchmarks));
  ASSERT_EQ(again.Count(), 1);
  EXPECT_EQ(again.Item(1).GetZoneSettingsDirect(), one.GetZoneSettingsDirect());
}

}  // namespace
}  // namespace tarnview
