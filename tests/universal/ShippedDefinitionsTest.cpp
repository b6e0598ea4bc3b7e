// Each definition that is installed beside the program, on a log of its logger's shape.

#include <gtest/gtest.h>

#include "base/FileSystem.h"
#include "model/Catalogue.h"
#include "support/LoadMessages.h"
#include "universal/BuiltInTitles.h"
#include "universal/DefinitionReader.h"
#include "universal/ShapeItems.h"
#include "universal/TitleDictionary.h"
#include "universal/Units.h"
#include "universal/UniversalDataItems.h"
#include "universal/UniversalLog.h"

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

TEST(ShippedDefinitions, EachReadsItsLog) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  for (const Shipped& shipped : kShipped) {
    SCOPED_TRACE(shipped.definition);
    RealFileSystem files;
    const auto text = files.Read(kFolder + shipped.definition + ".txt");
    const auto bytes = files.Read(std::string(TARNVIEW_EXAMPLES) + "/universal/" + shipped.log);
    ASSERT_TRUE(text && bytes);
    const clsDataLog definition = ReadDataLogDefinition(*text, "", catalogue.gcolFixedDataItems);
    const clsLogDataItems items =
        GenerateLogDataItemsGeneric(definition, catalogue.gcolFixedDataItems);
    OpenLog log;
    NoProgress progress;
    const LoadOutcome outcome = LoadGenericDataLog(
        *bytes, {log, items, Settings{}, ConversionTables{}, progress}, definition);
    EXPECT_EQ(outcome.messages, std::vector<int>{});
    EXPECT_TRUE(definition.objColumns.OffsetDataItems()
                    .empty());  // the graph would draw them that much higher
    EXPECT_EQ(outcome.unknownColumns.size(), shipped.unknown);
    ASSERT_EQ(log.glngDataLog.Rows(), 12);
    // The last moment of the drive: every log tells it in its own units.
    const auto value = [&](Column column) {
      return items.Item(ItemOf(column)).GetRawData(log.glngDataLog(column, 11));
    };
    EXPECT_NEAR(value(kSecs), 2.75, 1e-3);
    EXPECT_EQ(value(kRPM), 6500);
    EXPECT_NEAR(value(kMAP), 185.4, 0.3);
    EXPECT_NEAR(value(kTPS), 96, 0.1);
    EXPECT_NEAR(value(kCTemp), 86, 0.3);
    EXPECT_NEAR(value(kATemp), 33, 0.3);
    EXPECT_NEAR(value(kAF), 11.5, 0.01);
    EXPECT_NEAR(value(kIAdv), 16, 0.1);
    if (!log.glngDataLog.Column(kSpeed).empty()) {
      EXPECT_NEAR(value(kSpeed), 93, 0.1);
    }
  }
}

/// Two more lines of preamble: what is told of the log's own lines counts for little.
TEST(ShippedDefinitions, ThoseWithAPreambleFindTheirTitlesWhereverTheyStand) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  int found = 0;
  for (const Shipped& shipped : kShipped) {
    RealFileSystem files;
    const clsDataLog definition = ReadDataLogDefinition(
        *files.Read(kFolder + shipped.definition + ".txt"), "", catalogue.gcolFixedDataItems);
    if (definition.strTitlesStart.empty()) continue;
    ++found;
    const std::string text(std::string_view(
        *files.Read(std::string(TARNVIEW_EXAMPLES) + "/universal/" + shipped.log)));
    const auto first = text.find('\n') + 1;
    const clsLogDataItems items =
        GenerateLogDataItemsGeneric(definition, catalogue.gcolFixedDataItems);
    OpenLog log;
    NoProgress progress;
    LoadGenericDataLog(text.substr(0, first) + "One more: 1\n\n" + text.substr(first),
                       {log, items, Settings{}, ConversionTables{}, progress}, definition);
    EXPECT_EQ(log.glngDataLog.Rows(), 12) << shipped.definition;
  }
  EXPECT_EQ(found, 6);
}

TEST(ShippedDefinitions, TheDictionaryHasTheirTitles) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  const TitleDictionary dictionary(BuiltInTitles());
  for (const Shipped& shipped : kShipped) {
    const clsDataLog definition =
        ReadDataLogDefinition(*RealFileSystem().Read(kFolder + shipped.definition + ".txt"), "",
                              catalogue.gcolFixedDataItems);
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
