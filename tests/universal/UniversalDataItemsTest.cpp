#include <gtest/gtest.h>

#include <fstream>

#include "DefinitionText.h"
#include "model/Catalogue.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/DefinitionReader.h"
#include "universal/DefinitionWriter.h"
#include "universal/UniversalDataItems.h"

namespace tarnview {
namespace {

const Catalogue& Built() {
  static const Catalogue catalogue = BuildDataItemCatalogue();
  return catalogue;
}

clsLogDataItems Items(std::vector<std::string> columns) {
  columns.push_back(ColumnText("Time", 63, 3));
  const clsDataLog definition =
      ReadDataLogDefinition(DefinitionText{"", columns, ""}.Text(), "", Built().gcolFixedDataItems);
  return GenerateLogDataItemsGeneric(definition, Built().gcolFixedDataItems);
}

TEST(UniversalDataItems, AColumnShapesItsItem) {
  const clsLogDataItems items =
      Items({ColumnText("EGT", 55, 2,
                        "OFFSET=10.125\nDISPLAYDECIMALPLACES=1\nDISPLAYCOLOUR=255\nDISPLAYFACTOR=0."
                        "1\nDISPLAYLINESTYLE=2\n"
                        "DISPLAYLINEWIDTH=4\nDISPLAYZERO=N\nCOLUMNMAXIMUMVALUE=900\n")});
  const clsLogDataItem& item = items.Item(55);
  EXPECT_EQ(item.strShortName + "|" + item.strLongName, "EGT|About EGT");
  EXPECT_EQ(item.lngStorageOffset, 1012);  // 1012.5, half to even
  EXPECT_EQ(item.dblFactor, 100);
  EXPECT_EQ(item.GetFormattedData(1012 + 12340), "123.4");
  EXPECT_EQ(item.lngColour, 255);
  EXPECT_EQ(item.lngLineStyle * 10 + item.lngLineWidth, 24);
  EXPECT_EQ(item.dblSampleDisplayFactor, 0.1);
  EXPECT_FALSE(item.blnDisplayZero);
  EXPECT_EQ(item.SetRawData(1000), 91012);
  EXPECT_FALSE(item.blnMinValueSet());
}

TEST(UniversalDataItems, WhereAColumnIsSilentTheCatalogueStays) {
  const clsLogDataItems items = Items({ColumnText("P", 5, 1)});
  const clsLogDataItem& fixed = Built().gcolFixedDataItems.Item(5);
  EXPECT_EQ(items.Item(5).lngColour, fixed.lngColour);
  EXPECT_EQ(items.Item(5).lngDisplayDecimalPlaces(), fixed.lngDisplayDecimalPlaces());
  EXPECT_EQ(items.Item(6).strLongName, "Lambda Adjustment");
}

TEST(UniversalDataItems, ListsAndOddTypes) {
  const clsLogDataItems items =
      Items({ColumnText("Gear", 5, 0, "[VALUES]\nN\n1st\n", 2), ColumnText("Odd", 7, 0, "", 4)});
  EXPECT_EQ(items.Item(5).GetFormattedData(1), "1st");
  EXPECT_EQ(items.Item(7).GetFormattedData(12), "12");
}

TEST(UniversalDataItems, ItemsOfTheDefinitionAndOfEveryLogBelongToTheFamily) {
  const clsLogDataItems items = Items({ColumnText("P", 5, 1)});
  std::string family;
  for (int id = 1; id <= items.Count(); ++id)
    if (items.Item(id).InFamily(7)) family += std::to_string(id) + " ";
  EXPECT_EQ(family, "1 3 5 24 45 46 63 ");
}

/// The definition that serves where no other is chosen, as its file.
TEST(DefaultDataLogDefinition, HoldsWhatItsFileSays) {
  std::ifstream file(TARNVIEW_TESTS "/universal/built_in.txt", std::ios::binary);
  const std::string wanted(std::istreambuf_iterator<char>(file), {});
  std::string printed = DefinitionFileText(DefaultDataLogDefinition());
  std::erase(printed, '\r');
  EXPECT_EQ(printed, wanted);
}

}  // namespace
}  // namespace tarnview
