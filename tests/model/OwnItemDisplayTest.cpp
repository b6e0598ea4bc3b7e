#include "model/Catalogue.h"
#include "model/ItemDisplaySettings.h"
#include "model/OwnItemDisplay.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// The catalogue's items and two of a log's own, numbered behind them.
clsLogDataItems Items() {
  clsLogDataItems items = BuildDataItemCatalogue().gcolFixedDataItems;
  for (const char* title : {"Oil, hot", "Fuel|2"}) {
    clsLogDataItem item;
    item.intSeq = item.intKey = items.Count() + 1;
    item.strLongName = title;
    items.AddDirect(std::move(item));
  }
  return items;
}

std::string Shown(const std::string& kept) {
  clsLogDataItems items = Items();
  ShowOwnItemsAs(kept, items);
  return KeepOwnItemDisplay("", Items(), items);
}

TEST(OwnItemDisplay, IsKeptByTitleTheLatestInFront) {
  ExpectTable(
      [](const TableRow& row) {
        return "kept " + Join(SplitAt(Shown(Join(SplitAt(row.All(), "/"), "|")), "|"), "/");
      },
      R"(
 -> kept  | 255,2,3,N,0.5,OIL, HOT -> kept 255,2,3,N,0.5,OIL, HOT | 256,1,1,Y,1,FUEL 2/255,2,3,N,0.5,OIL, HOT -> kept 255,2,3,N,0.5,OIL, HOT/256,1,1,Y,1,FUEL 2 | 1,1,1,Y,1,Other -> kept  | rubbish/255,2,3,N,0.5,OIL, HOT/1,2/ -> kept 255,2,3,N,0.5,OIL, HOT
99999999,9,9,,99999,oil, hot/x,x,x,x,x,FUEL 2 -> kept 16777215,3,5,N,1000,OIL, HOT/0,1,1,N,0.0001,FUEL 2
)");
  const std::string oil = "255,2,3,N,0.5,OIL, HOT", fuel = "256,1,1,Y,1,FUEL 2";
  clsLogDataItems items = Items();
  items.Item(items.Count()).lngColour = 256;
  EXPECT_EQ(KeepOwnItemDisplay(oil + "|7,1,1,Y,1,FUEL 2", Items(), items).substr(0, 4), "256,");
  EXPECT_EQ(KeepOwnItemDisplay(oil, Items(), Items()), oil);
  EXPECT_EQ(KeepOwnItemDisplay(oil, Items(), BuildDataItemCatalogue().gcolFixedDataItems), oil);
  EXPECT_EQ(KeepOwnItemDisplay(fuel, Items(), items).find('|'), std::string::npos);
}

TEST(OwnItemDisplay, IsNotThatOfTheCatalogue) {
  clsLogDataItems items = Items();
  ShowOwnItemsAs("7,1,1,Y,1," + Upper(items.Item(gintColumnCount).strLongName), items);
  EXPECT_NE(items.Item(gintColumnCount).lngColour, 7);
}

/// The colours of an item of the catalogue and of one of the log's own.
std::string Colours(const clsLogDataItems& items) {
  return std::to_string(items.Item(3).lngColour) + " " + std::to_string(items.Item(84).lngColour);
}

TEST(ItemDisplay, OfTheCatalogueIsWrittenReadAndCopied) {
  clsLogDataItems items = Items(), read = Items(), copied = Items();
  const std::string before = Colours(items);
  items.Item(3).lngColour = items.Item(84).lngColour = 7;
  IniWriter file;
  WriteItemDisplay(items, file);
  EXPECT_EQ(file.Text().find("Item 84"), std::string::npos);
  ReadItemDisplay(ReadINIFileToArray("[A]\nItem 3 Colour=7\n"), "A", read);
  EXPECT_EQ(Colours(read), before) << "without the first item there is none";
  ReadItemDisplay(ReadINIFileToArray("[A]\n" + file.Text() + "Item 84 Colour=7\n"), "A", read);
  EXPECT_EQ(Colours(read), "7 0");
  CopyCatalogueDisplay(items, copied);
  EXPECT_EQ(Colours(copied), "7 0");
  CopyItemDisplay(items, copied);
  EXPECT_EQ(Colours(copied), "7 7");
}

}  // namespace
}  // namespace tarnview
