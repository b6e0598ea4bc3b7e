#include <gtest/gtest.h>

#include <limits>

#include "model/clsLogDataItem.h"
#include "model/clsLogDataItems.h"

namespace tarnview {
namespace {

clsLogDataItem Item(int type, double factor, int places, int offset, bool zero = true) {
  clsLogDataItem item;
  item.intType = type;
  item.dblFactor = factor;
  item.SetDisplayDecimalPlaces(places);
  item.lngStorageOffset = offset;
  item.blnDisplayZero = zero;
  item.varDescList = {"Off", "On"};
  return item;
}

TEST(clsLogDataItem, TurnsStoredIntegersIntoTextAndValue) {
  struct Row {
    clsLogDataItem item;
    std::int32_t stored;
    const char* text;
    double value;
  };
  constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
  const Row rows[] = {
      // clang-format off
      {Item(kPlainItem, 10, 1, 0), 1234, "1234", 1234},  // the factor of a plain item does not count
      {Item(kPlainItem, 1, 0, 1000), 995, "-5", -5},
      {Item(kPlainItem, 1, 0, 1), kLeast, "-2147483649", -2147483649.0},
      {Item(kPlainItem, 1, 0, 0), 0, "0", 0},
      {Item(kPlainItem, 1, 0, 0, false), 0, "", 0},
      {Item(kScaledItem, 1000, 2, 0), 14705, "14.70", 14.705},
      {Item(kScaledItem, 1000, 2, 0), 14715, "14.72", 14.715},
      {Item(kScaledItem, 10, 1, 0), 5, "0.5", .5},
      {Item(kScaledItem, 10, 1, 0), -5, "-0.5", -.5},
      {Item(kScaledItem, 1000, 3, 1000), 1000, "0.000", 0},
      {Item(kScaledItem, 1000, 3, 1000, false), 1000, "", 0},
      {Item(kScaledItem, 1000, 3, 1000, false), 0, "-1.000", -1},
      {Item(kScaledItem, 10000, 3, 0), 5, "0.000", .0005},  // shown, since the value is not zero
      {Item(kScaledItem, 0, 3, 0), 5, "", 0},
      {Item(kListItem, 10, 1, 1), 1, "On", 1},
      {Item(kListItem, 1, 0, 0, false), 0, "Off", 0},
      {Item(kListItem, 1, 0, 0), 2, "", 2},
      {Item(kListItem, 1, 0, 0), -1, "", -1},
      // clang-format on
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.item.GetFormattedData(row.stored), row.text) << row.stored;
    EXPECT_EQ(row.item.GetRawData(row.stored), row.value) << row.stored;
  }
}

TEST(clsLogDataItem, StoresValuesRoundedAndNeverBelowZero) {
  struct Row {
    clsLogDataItem item;
    double value;
    std::int32_t stored;
  };
  const Row rows[] = {
      {Item(kPlainItem, 1, 0, 0), -5, 0},
      {Item(kPlainItem, 1, 0, 1000), -5, 995},
      {Item(kPlainItem, 1, 0, 0), 2.5, 2},
      {Item(kScaledItem, 1000, 2, 0), 14.7, 14700},
      {Item(kScaledItem, 100, 2, 0), 1.015, 102},  // 101.49999999999999 reads as 101.5
      {Item(kScaledItem, 1000, 3, 1000), -0.25, 750},
      {Item(kListItem, 10, 1, 5), 1, 1},
      {Item(kPlainItem, 1, 0, 0), 1e12, 0},
  };
  for (const Row& row : rows) EXPECT_EQ(row.item.SetRawData(row.value), row.stored) << row.value;

  clsLogDataItem bounded = Item(kScaledItem, 10, 1, 0);
  EXPECT_FALSE(bounded.blnMinValueSet() || bounded.blnMaxValueSet());
  bounded.SetMinValue(2);
  EXPECT_EQ(bounded.SetRawData(1), 20);
  EXPECT_EQ(bounded.SetRawData(900), 9000);
  bounded.SetMaxValue(8);
  EXPECT_EQ(bounded.SetRawData(900), 80);
}

TEST(clsLogDataItem, BuildsItsMask) {
  EXPECT_EQ(Item(kScaledItem, 1, 0, 0).strDisplayFormatMask(), "0");
  EXPECT_EQ(Item(kScaledItem, 1, 2, 0).strDisplayFormatMask(), "0.00");
}

TEST(clsLogDataItems, KeepPositionKeyAndOrderApart) {
  clsLogDataItems items;
  for (const int key : {3, 1, 2}) {
    clsLogDataItem item;
    item.intKey = key;
    item.strShortName = "K" + std::to_string(key);
    items.AddDirect(item);
  }
  EXPECT_EQ(items.Item(1).intKey, 3);
  EXPECT_EQ(items.Item("k2"), &items.Item(3));
  EXPECT_EQ(items.Item("k4"), nullptr);
  EXPECT_EQ(items.ByShortName("K1"), &items.Item(2));
  EXPECT_EQ(items.ByShortName("k1"), nullptr);
  std::vector<int> keys;
  for (const clsLogDataItem* item : items.InDisplayOrder()) keys.push_back(item->intKey);
  EXPECT_EQ(keys, (std::vector<int>{1, 2, 3}));

  clsLogDataItems copy = items.Duplicate();
  copy.Item(1).strShortName = "other";
  EXPECT_EQ(items.Item(1).strShortName, "K3");
  EXPECT_EQ(copy.Item("k3")->strShortName, "other");
}

}  // namespace
}  // namespace tarnview
