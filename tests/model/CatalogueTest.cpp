#include <gtest/gtest.h>

#include <algorithm>
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

TEST_F(CatalogueTest, ItemsStandInTheOrderOfTheColumns) {
  ASSERT_EQ(items.Count(), gintColumnCount);
  ASSERT_EQ(catalogue.gcolDefaultDataItems.Count(), gintColumnCount);
  for (int n = 1; n <= items.Count(); ++n) {
    const clsLogDataItem& item = items.Item(n);
    EXPECT_EQ(item.intSeq, n);
    EXPECT_EQ(items.Item("k" + std::to_string(item.intKey)), &item);
    EXPECT_EQ(items.ByShortName(item.strShortName), &item)
        << "two items bear the name " << item.strShortName;
    EXPECT_TRUE(item.intType == kScaledItem || item.dblFactor == 1) << item.strShortName;
    EXPECT_EQ(item.intType == kListItem, !item.varDescList.empty()) << item.strShortName;
    EXPECT_LE(item.strShortName.size(), 8u);
    EXPECT_TRUE(item.blnDisplay);
    EXPECT_FALSE(item.colApplicableLogFamilies.empty());
  }
}

/// "IAdv M" as "IAdvM", "Inj %" as "InjPercent": how the columns are called in the code.
std::string CodeName(const std::string& shortName) {
  std::string name = "k";
  for (const char c : shortName)
    if (c == '%')
      name += "Percent";
    else if (c != ' ' && c != '/')
      name += c;
  return name;
}

TEST_F(CatalogueTest, ColumnsAreCalledAsTheItemsAre) {
#define NAME(column) \
  { column, #column }
  const std::pair<Column, const char*> columns[] = {
      NAME(kSample), NAME(kCASErr), NAME(kRPM),     NAME(kDwell),        NAME(kMAP),
      NAME(kLambda), NAME(kO2),     NAME(kO2A),     NAME(kWGCM),         NAME(kWGPercent),
      NAME(kEGR),    NAME(kFuelP),  NAME(kInjW),    NAME(kInjPercent),   NAME(kThrottle),
      NAME(kIAC),    NAME(kTPS),    NAME(kNeutral), NAME(kComp),         NAME(kKnock),
      NAME(kIAdv),   NAME(kVolt),   NAME(kCTemp),   NAME(kSpeed),        NAME(kEngFan),
      NAME(kCndFan), NAME(kAC),     NAME(kPRC),     NAME(kChPurge),      NAME(kKnockC),
      NAME(kATemp),  NAME(kAuxNS),  NAME(kKnockT),  NAME(kATR),          NAME(kL3),
      NAME(kAF),     NAME(kBoost),  NAME(kVacuum),  NAME(kAuxNF),        NAME(kAuxCS),
      NAME(kAuxCF),  NAME(kKnockE), NAME(kMAPLmt),  NAME(kRevLmt),       NAME(kPower),
      NAME(kTorque), NAME(kPWOFF),  NAME(kGAMA),    NAME(kCR),           NAME(kEGOV),
      NAME(kGPO1),   NAME(kTDUTY),  NAME(kTPWON),   NAME(kTPWOFF),       NAME(kAD1),
      NAME(kAD2),    NAME(kAD3),    NAME(kAD4),     NAME(kGPO2),         NAME(kGFG),
      NAME(kSIA),    NAME(kKNR),    NAME(kSecs),    NAME(kZone),         NAME(kIdleSp),
      NAME(kFuelZV), NAME(kIgnZV),  NAME(kTumble),  NAME(kL4),           NAME(kL3Idle),
      NAME(kMAF),    NAME(kMAFM),   NAME(kIAdvM),   NAME(kFuelPercentM), NAME(kBCL),
      NAME(kLS),     NAME(kMLP),    NAME(kMAPD),    NAME(kMAFD),         NAME(kTPSD),
      NAME(kMAFHz),  NAME(kMAFMHz), NAME(kAFTgt)};
#undef NAME
  ASSERT_EQ(std::size(columns), static_cast<std::size_t>(kColumnCount));
  for (const auto& [column, name] : columns)
    EXPECT_TRUE(SameIgnoringCase(CodeName(items.Item(ItemOf(column)).strShortName), name)) << name;
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
  std::string wanted, heading;
  std::getline(file, heading);
  wanted.assign(std::istreambuf_iterator<char>(file), {});
  std::string printed;
  for (int n = 1; n <= items.Count(); ++n) printed += Print(items.Item(n));
  EXPECT_EQ(printed, wanted);
  EXPECT_EQ(items.Item("k68"), &items.Item(3));
}

TEST_F(CatalogueTest, ListsAreByNameBehindTheTwoTimes) {
  auto ordered = items.InDisplayOrder();
  EXPECT_EQ(ordered[0]->strShortName, "Sample");
  EXPECT_EQ(ordered[1]->strShortName, "Secs");
  EXPECT_EQ(ordered[2]->strShortName, "A/C");
  EXPECT_EQ(ordered.back()->strShortName, "Zone");
}

TEST(MakeLogFamilyList, HoldsTheIdsOfTheFlags) {
  EXPECT_EQ(MakeLogFamilyList(true, false, true, false, false, true), (std::vector<int>{1, 3, 6}));
}

}  // namespace
}  // namespace tarnview
