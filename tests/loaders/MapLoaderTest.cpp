#include <map>

#include "LoadedLog.h"
#include "loaders/BenchmarkLog.h"
#include "loaders/MapLoader.h"
#include "support/FMLinkLogBuilder.h"
#include "support/Table.h"

namespace tarnview {
namespace {

TEST(MapLoader, AMapIsZonesWithoutSamples) {
  const std::string zones = Repeated("", ZoneRowText(2), 15);
  const LoadedLog loaded(LoadMap, zones + " Engine Size: 1.8\n Notes:\na\n End Of Notes\n");
  EXPECT_EQ(loaded.Outcome(), "zones, says 8 9");
  EXPECT_FALSE(loaded.log.zones.gblnZoneLayout6);
  EXPECT_EQ(loaded.log.zones.strNotes, "a");
  EXPECT_EQ(LoadedLog(LoadMap, zones + zones).Outcome(), "zones, says 7 8 9");
  const LoadedLog none(LoadMap, " 1e5" + ZoneRowText(2).substr(4) + "\n");
  EXPECT_EQ(none.Outcome() + ", " + none.outcome.error, "nothing, says 56, 6, Overflow");
}

/// A log's zone section, each zone its own number modulo 200, one of them not known.
std::string Section() {
  std::vector<std::string> rows = CountingZoneRows();
  rows[2].replace(1, 3, "  *");
  return "Sample\nInitial zone map\n\n" + JoinLines(ZoneSectionLines(rows), "\n");
}

std::string Told(const MapReading& reading) {
  if (!reading.read) return "none " + reading.error;
  std::string told;
  for (const std::size_t zone : {0u, 32u, 33u, 239u, 255u})
    told += std::to_string(reading.map.zones[zone]) + " ";
  told += DateText(reading.map.chip.datChipDate) + " " +
          std::to_string(reading.map.intAtmosphericPressure);
  for (const Message message : reading.messages)
    told += " " + std::to_string(static_cast<int>(message));
  return told;
}

TEST(BenchmarkLog, ZonesAndChipOfALog) {
  const std::string settings = "x\n ATM = 101            1.8 18-Sep-01 \n";
  const std::map<std::string, std::string> logs{{"whole", Section() + settings},
                                                {"no settings line", Section()},
                                                {"no zones", "Sample\n"},
                                                {"settings first", settings + Section()},
                                                {"cut off", Section().substr(0, 300)},
                                                {"nothing", ""}};
  const auto tell = [&](const TableRow& row) {
    long bytes = 0;
    const MapReading reading =
        ReadBenchmarkLog(logs.at(row.Text(0)), Settings{}, [&](long length) { bytes += length; });
    return Told(reading) + ", " + std::to_string(bytes) + " bytes of other lines";
  };
  ExpectTable(tell, R"(
whole -> 0 0 33 39 55 2001-09-18 101, 49 bytes of other lines
no settings line -> 0 0 33 39 55 2000-01-01 75 7 8 9, 8 bytes of other lines
no zones -> none , 8 bytes of other lines
settings first -> none , 3 bytes of other lines
cut off -> none 62, Input past end of file, 8 bytes of other lines
nothing -> none , 0 bytes of other lines
)");
}

}  // namespace
}  // namespace tarnview
