#include <gtest/gtest.h>

#include <fstream>

#include "DefinitionText.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/DefinitionReader.h"
#include "universal/DefinitionWriter.h"
#include "universal/UniversalDataItems.h"

namespace tarnview {
namespace {

clsLogDataItems Items(std::vector<std::string> columns) {
  columns.push_back(ColumnText("Time", 63, 3));
  const clsDataLog definition =
      ReadDataLogDefinition(DefinitionText{"", columns, ""}.Text(), "", BuiltInItems());
  return GenerateLogDataItemsGeneric(definition, BuiltInItems());
}

TEST(UniversalDataItems, AColumnShapesItsItem) {
  const clsLogDataItems items =
      Items({ColumnText("EGT", 55, 2,
                        "OFFSET=10.125\nDISPLAYDECIMALPLACES=1\nDISPLAYCOLOUR=255\nDISPLAYFACTOR=0."
                        "1\nDISPLAYLINESTYLE=2\n"
                        "DISPLAYLINEWIDTH=4\nDISPLAYZERO=N\nCOLUMNMAXIMUMVALUE=900\n")});
  const clsLogDataItem& item = items.Item(55);
  // An offset of 1012.5 goes to the even number, and 1000 are held to the maximum.
  const std::string told =
      item.strShortName + " " + item.strLongName + " " + std::to_string(item.lngStorageOffset) +
      " " + NumberText(item.dblFactor) + " " + std::to_string(item.lngColour) + " " +
      std::to_string(item.lngLineStyle) + " " + std::to_string(item.lngLineWidth) + " " +
      NumberText(item.dblSampleDisplayFactor) + " " + std::to_string(item.SetRawData(1000));
  EXPECT_EQ(told, "EGT About EGT 1012 100 255 2 4 0.1 91012");
  EXPECT_EQ(item.GetFormattedData(1012 + 12340), "123.4");
  EXPECT_FALSE(item.blnDisplayZero || item.blnMinValueSet());
}

TEST(UniversalDataItems, WhereAColumnIsSilentTheCatalogueStays) {
  const clsLogDataItems items = Items({ColumnText("P", 5, 1)});
  const clsLogDataItem& fixed = BuiltInItems().Item(5);
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
