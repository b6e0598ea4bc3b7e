// Each definition that is installed beside the program, on a log of its logger's shape.

#include <gtest/gtest.h>

#include "LoadedUniversal.h"
#include "base/FileSystem.h"
#include "support/LoadMessages.h"
#include "universal/BuiltInTitles.h"
#include "universal/ShapeItems.h"
#include "universal/TitleDictionary.h"
#include "universal/Units.h"

namespace tarnview {
namespace {

const std::string kFolder = std::string(TARNVIEW_DATA) + "/Universal Data Log Formats/";

struct Shipped {
  const char* definition;
  const char* log;
  std::size_t unknown;  ///< columns of the log that the definition leaves out
};
constexpr Shipped kShipped[] = {
    {"Cobb Accessport", "cobb.csv", 1},
    {"ECUMaster EMU", "ecumaster_emu.csv", 0},
    {"HP Tuners", "hp_tuners.csv", 0},
    {"ME221", "me221.csv", 0},
    {"MegaSquirt TunerStudio (C)", "megasquirt_c.msl", 0},
    {"MegaSquirt TunerStudio (F)", "megasquirt_f.msl", 0},
    {"MoTeC i2", "motec_i2.csv", 0},
    {"OBDLink", "obdlink.csv", 0},
    {"RomRaider", "romraider.csv", 0},
    {"Speeduino", "speeduino.msl", 0},
    {"Torque", "torque.csv", 3},
};

clsDataLog DefinitionOf(const Shipped& shipped) {
  const auto text = RealFileSystem().Read(kFolder + shipped.definition + ".txt");
  return ReadDataLogDefinition(*text, "", BuiltInItems());
}
std::string LogOf(const Shipped& shipped) {
  return std::string(
      *RealFileSystem().Read(std::string(TARNVIEW_EXAMPLES) + "/universal/" + shipped.log));
}

/// The last moment of the drive: every log tells it in its own units.
constexpr struct {
  Column column;
  double value, within;
} kLastMoment[] = {{kSecs, 2.75, 1e-3}, {kRPM, 6500, 0},   {kMAP, 185.4, 0.3},
                   {kTPS, 96, 0.1},     {kCTemp, 86, 0.3}, {kATemp, 33, 0.3},
                   {kAF, 11.5, 0.01},   {kIAdv, 16, 0.1},  {kSpeed, 93, 0.1}};

TEST(ShippedDefinitions, EachReadsItsLog) {
  for (const Shipped& shipped : kShipped) {
    SCOPED_TRACE(shipped.definition);
    const LoadedUniversal loaded(DefinitionOf(shipped), LogOf(shipped));
    EXPECT_EQ(loaded.outcome.messages, std::vector<int>{});
    EXPECT_EQ(loaded.outcome.unknownColumns.size(), shipped.unknown);
    // The graph would draw an item with an offset that much higher.
    EXPECT_TRUE(loaded.definition.objColumns.OffsetDataItems().empty());
    const SampleStore& store = loaded.log.glngDataLog;
    ASSERT_EQ(store.Rows(), 12);
    for (const auto& [column, value, within] : kLastMoment)
      if (column != kSpeed || !store.Column(kSpeed).empty()) {
        EXPECT_NEAR(loaded.items.Item(ItemOf(column)).GetRawData(store(column, 11)), value, within);
      }
  }
}

/// Two more lines of preamble: what is told of the log's own lines counts for little.
TEST(ShippedDefinitions, ThoseWithAPreambleFindTheirTitlesWhereverTheyStand) {
  int found = 0;
  for (const Shipped& shipped : kShipped) {
    const clsDataLog definition = DefinitionOf(shipped);
    if (definition.strTitlesStart.empty()) continue;
    ++found;
    std::string text = LogOf(shipped);
    text.insert(text.find('\n') + 1, "One more: 1\n\n");
    EXPECT_EQ(LoadedUniversal(definition, text).log.glngDataLog.Rows(), 12) << shipped.definition;
  }
  EXPECT_EQ(found, 6);
}

TEST(ShippedDefinitions, TheDictionaryHasTheirTitles) {
  const TitleDictionary dictionary(BuiltInTitles());
  for (const Shipped& shipped : kShipped) {
    const clsDataLog definition = DefinitionOf(shipped);
    for (const clsDataLogColumn& column : definition.objColumns) {
      if (UnitOfItem(column.lngDataItemID).empty()) continue;  // an item that only stands in
      std::string title = column.strColumnTitle;
      TakeUnit(title);
      EXPECT_NE(dictionary.Find(title).item, "")
          << shipped.definition << ": " << column.strColumnTitle;
    }
  }
}

TEST(ShippedDefinitions, NoneIsLeftOutHere) {
  EXPECT_EQ(RealFileSystem().List(kFolder, "*.txt").size(), std::size(kShipped));
}

}  // namespace
}  // namespace tarnview
