#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Catalogue.h"

namespace tarnview {
namespace {

class CatalogueTest : public testing::Test {
 protected:
  const Catalogue catalogue = BuildDataItemCatalogue();
  const clsLogDataItems& items = catalogue.gcolFixedDataItems;
};

TEST_F(CatalogueTest, ItemsAreFoundByKeyAndByName) {
  ASSERT_EQ(catalogue.gcolDefaultDataItems.Count(), gintColumnCount);
  for (int n = 1; n <= items.Count(); ++n) {
    const clsLogDataItem& item = items.Item(n);
    EXPECT_EQ(items.Item("k" + std::to_string(item.intKey)), &item);
    EXPECT_EQ(items.ByShortName(item.strShortName), &item)
        << "two items bear the name " << item.strShortName;
    EXPECT_TRUE(item.blnDisplay);
  }
  EXPECT_EQ(items.Item("k999"), nullptr);
  EXPECT_EQ(items.ByShortName("rpm"), nullptr);
  clsLogDataItems copy = items.Duplicate();
  copy.Item(3).strShortName = "other";
  EXPECT_EQ(items.Item(3).strShortName, "RPM");
  EXPECT_EQ(copy.Item("k68")->strShortName, "other");
}

/// "IAdv M" as "kIAdvM", "Inj %" as "kInjPercent": how the columns are called in the code.
TEST_F(CatalogueTest, ColumnsAreCalledAsTheItemsAre) {
  std::ifstream file(TARNVIEW_TESTS "/../src/model/Column.h");
  std::vector<std::string> names;
  for (std::string word; file >> word;)
    if (word[0] == 'k' && word.back() == ',') names.push_back(word.substr(1, word.size() - 2));
  ASSERT_EQ(names.size(), static_cast<std::size_t>(kColumnCount));
  for (std::size_t column = 0; column < names.size(); ++column) {
    std::string name;
    for (const char c : items.Item(static_cast<int>(column) + 1).strShortName)
      name += c == '%' ? "Percent" : std::string(c != ' ' && c != '/', c);
    EXPECT_TRUE(SameIgnoringCase(name, names[column])) << name << " " << names[column];
  }
}

std::string Print(const clsLogDataItem& item) {
  char colour[8];
  std::snprintf(colour, sizeof colour, "%06X", static_cast<unsigned>(item.lngColour));
  std::string families;
  for (const int family : item.colApplicableLogFamilies) families += std::to_string(family);
  const std::string flags = std::string(item.blnMandatory ? "M" : "") +
                            (item.blnSampleGraphPlottable ? "" : "N") +
                            (item.blnDisplayZero ? "" : "Z");
  const std::string line =
      Join({std::to_string(item.intSeq), std::to_string(item.intKey), item.strShortName,
            item.strLongName, std::to_string(item.intType), NumberText(item.dblFactor),
            std::to_string(item.lngDisplayDecimalPlaces()), NumberText(item.dblSampleDisplayFactor),
            colour, std::to_string(item.lngLineStyle) + "/" + std::to_string(item.lngLineWidth),
            std::to_string(item.lngStorageOffset), families, flags, Join(item.varDescList, ",")},
           " | ");
  return line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
}

TEST_F(CatalogueTest, ItemsHoldWhatTheTableSays) {
  std::ifstream file(TARNVIEW_TESTS "/model/catalogue.txt", std::ios::binary);
  std::string heading;
  std::getline(file, heading);
  const std::string wanted(std::istreambuf_iterator<char>(file), {});
  std::string printed;
  for (int n = 1; n <= items.Count(); ++n) printed += Print(items.Item(n));
  EXPECT_EQ(printed, wanted);
  EXPECT_EQ(Print({}), "0 | 0 |  |  | 0 | 1 | 0 | 1 | 000000 | 1/1 | 0 |  |  |\n");
}

TEST_F(CatalogueTest, ListsAreByNameBehindTheTwoTimes) {
  const auto ordered = items.InDisplayOrder();
  std::string told;
  for (std::size_t n = 0; n < 4; ++n) told += ordered[n]->strShortName + " ";
  EXPECT_EQ(told + ordered.back()->strShortName, "Sample Secs A/C A Temp Zone");
}

TEST(MakeLogFamilyList, HoldsTheIdsOfTheFlags) {
  EXPECT_EQ(MakeLogFamilyList(true, false, true, false, false, true), (std::vector<int>{1, 3, 6}));
}

}  // namespace
}  // namespace tarnview
