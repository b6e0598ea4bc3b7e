// Each definition that is installed beside the program, on a log of its logger's shape.

#include <gtest/gtest.h>

#include "LoadedUniversal.h"
#include "base/FileSystem.h"
#include "universal/ShapeItems.h"
#include "universal/Units.h"

namespace tarnview {
namespace {

const std::string kFolder = std::string(TARNVIEW_DATA) + "/Universal Data Log Formats/";

/// How many samples a log has, which of its columns are left out, and the last moment of the drive,
/// which every log tells in its own units.
std::string Told(const LoadedUniversal& loaded) {
  const SampleStore& store = loaded.log.glngDataLog;
  std::string told = std::to_string(store.Rows()) + loaded.FirstMessage();
  for (const Column column : {kSecs, kRPM, kMAP, kTPS, kCTemp, kATemp, kAF, kIAdv, kSpeed}) {
    const clsLogDataItem& item = loaded.items.Item(ItemOf(column));
    const bool logged = !store.Column(column).empty();
    told += " " + item.strShortName + " " +
            (logged ? item.GetFormattedData(store(column, store.Rows() - 1)) : "none");
  }
  for (const std::string& title : loaded.outcome.unknownColumns) told += ", without " + title;
  return told;
}

TEST(ShippedDefinitions, EachReadsItsLogWhereverItsTitlesStand) {
  std::size_t count = 0;
  const auto tell = [&](const TableRow& row) {
    ++count;
    const clsDataLog definition = ReadDataLogDefinition(
        *RealFileSystem().Read(kFolder + row.Text(0) + ".txt"), "", BuiltInItems());
    // The graph would draw an item with an offset that much higher.
    EXPECT_TRUE(definition.objColumns.OffsetDataItems().empty()) << row.All();
    for (const clsDataLogColumn& column : definition.objColumns) {
      if (UnitOfItem(column.lngDataItemID).empty()) continue;  // an item that only stands in
      std::string title = column.strColumnTitle;
      TakeUnit(title);
      EXPECT_NE(BuiltInDictionary().Find(title).item, "") << row.All() << column.strColumnTitle;
    }
    std::string log(*RealFileSystem().Read(TARNVIEW_EXAMPLES "/universal/" + row.Text(1)));
    const std::string told = Told(LoadedUniversal(definition, log));
    if (definition.strTitlesStart.empty()) return told;
    // Two more lines of preamble: what is told of the log's own lines counts for little.
    log.insert(log.find('\n') + 1, "One more: 1\n\n");
    EXPECT_EQ(Told(LoadedUniversal(definition, log)), told) << row.All();
    return told + ", by its titles";
  };
  ExpectTable(tell, R"(
Cobb Accessport, cobb.csv -> 12 Secs 2.750 RPM 6500 MAP 185.4 TPS 96.0 C Temp 86.1 A Temp 32.8 A/F 11.50 IAdv 16.0 Speed 93.0, without AP Info:[AP3-SUB-004 v1.7.4.0]
ECUMaster EMU, ecumaster_emu.csv -> 12 Secs 2.750 RPM 6500 MAP 185.4 TPS 96.0 C Temp 86.0 A Temp 33.0 A/F 11.50 IAdv 16.0 Speed 93.0
HP Tuners, hp_tuners.csv -> 12 Secs 2.750 RPM 6500 MAP 185.4 TPS 96.0 C Temp 86.1 A Temp 32.8 A/F 11.50 IAdv 16.0 Speed 93.0, by its titles
ME221, me221.csv -> 12 Secs 2.750 RPM 6500 MAP 185.4 TPS 96.0 C Temp 86.0 A Temp 33.0 A/F 11.50 IAdv 16.0 Speed 93.0
MegaSquirt TunerStudio (C), megasquirt_c.msl -> 12 Secs 2.750 RPM 6500 MAP 185.4 TPS 96.0 C Temp 86.0 A Temp 33.0 A/F 11.50 IAdv 16.0 Speed none, by its titles
MegaSquirt TunerStudio (F), megasquirt_f.msl -> 12 Secs 2.750 RPM 6500 MAP 185.4 TPS 96.0 C Temp 86.1 A Temp 32.8 A/F 11.50 IAdv 16.0 Speed none, by its titles
MoTeC i2, motec_i2.csv -> 12 Secs 2.750 RPM 6500 MAP 185.4 TPS 96.0 C Temp 86.0 A Temp 33.0 A/F 11.50 IAdv 16.0 Speed 93.0, by its titles
OBDLink, obdlink.csv -> 12 Secs 2.750 RPM 6500 MAP 185.6 TPS 96.0 C Temp 86.1 A Temp 32.8 A/F 11.50 IAdv 16.0 Speed 93.0, by its titles
RomRaider, romraider.csv -> 12 Secs 2.750 RPM 6500 MAP 185.5 TPS 96.0 C Temp 86.1 A Temp 32.8 A/F 11.50 IAdv 16.0 Speed 93.0
Speeduino, speeduino.msl -> 12 Secs 2.750 RPM 6500 MAP 185.4 TPS 96.0 C Temp 86.0 A Temp 33.0 A/F 11.50 IAdv 16.0 Speed 93.0, by its titles
Torque, torque.csv -> 12 Secs 2.750 RPM 6500 MAP 185.4 TPS 96.0 C Temp 86.0 A Temp 33.0 A/F 11.50 IAdv 16.0 Speed 93.0, without GPS Time, without Longitude, without Latitude
)");
  EXPECT_EQ(RealFileSystem().List(kFolder, "*.txt").size(), count);
}

}  // namespace
}  // namespace tarnview
