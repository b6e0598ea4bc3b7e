#include <map>

#include "model/clsLogDataItem.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// Kind, factor, decimal places, offset.
clsLogDataItem ItemOf(const TableRow& row) {
  const std::map<std::string, int> kinds{
      {"plain", kPlainItem}, {"scaled", kScaledItem}, {"list", kListItem}};
  clsLogDataItem item;
  item.intType = kinds.at(row.Text(0));
  item.dblFactor = row.Number(1);
  item.SetDisplayDecimalPlaces(row.Int(2));
  item.lngStorageOffset = row.Int(3);
  item.varDescList = {"Off", "On"};
  return item;
}

/// What is stored, and whether no zeros are shown: text and value.
TEST(clsLogDataItem, TurnsStoredIntegersIntoTextAndValue) {
  const auto tell = [](const TableRow& row) {
    clsLogDataItem item = ItemOf(row);
    item.blnDisplayZero = row.Count() == 5;
    return "'" + item.GetFormattedData(row.Int(4)) + "' " + NumberText(item.GetRawData(row.Int(4)));
  };
  ExpectTable(tell, R"(
plain, 10, 1, 0, 1234 -> '1234' 1234 | plain, 1, 0, 1000, 995 -> '-5' -5 | plain, 1, 0, 1, -2147483648 -> '-2147483649' -2147483649
plain, 1, 0, 0, 0 -> '0' 0 | plain, 1, 0, 0, 0, no zeros -> '' 0 | scaled, 1000, 2, 0, 14705 -> '14.70' 14.705
scaled, 1000, 2, 0, 14715 -> '14.72' 14.715 | scaled, 10, 1, 0, 5 -> '0.5' 0.5 | scaled, 10, 1, 0, -5 -> '-0.5' -0.5
scaled, 1000, 3, 1000, 1000 -> '0.000' 0 | scaled, 1000, 3, 1000, 1000, no zeros -> '' 0
scaled, 1000, 3, 1000, 0, no zeros -> '-1.000' -1 | scaled, 10000, 3, 0, 5 -> '0.000' 0.0005 | scaled, 0, 3, 0, 5 -> '' 0
list, 10, 1, 1, 1 -> 'On' 1 | list, 1, 0, 0, 0, no zeros -> 'Off' 0 | list, 1, 0, 0, 2 -> '' 2 | list, 1, 0, 0, -1 -> '' -1
)");
}

TEST(clsLogDataItem, StoresValuesRoundedAndNeverBelowZero) {
  // What is set, the least and the most that may be.
  // 1.015 is kept as 101.49999999999999 hundredths and reads as 101.5.
  const auto tell = [](const TableRow& row) {
    clsLogDataItem item = ItemOf(row);
    if (row.Count() > 5) item.SetMinValue(row.Number(5));
    if (row.Count() > 6) item.SetMaxValue(row.Number(6));
    return std::to_string(item.SetRawData(row.Number(4)));
  };
  ExpectTable(tell, R"(
plain, 1, 0, 0, -5 -> 0 | plain, 1, 0, 1000, -5 -> 995 | plain, 1, 0, 0, 2.5 -> 2 | scaled, 1000, 2, 0, 14.7 -> 14700
scaled, 100, 2, 0, 1.015 -> 102 | scaled, 1000, 3, 1000, -0.25 -> 750 | list, 10, 1, 5, 1 -> 1 | plain, 1, 0, 0, 1e12 -> 0
scaled, 10, 1, 0, 1, 2 -> 20 | scaled, 10, 1, 0, 900, 2 -> 9000 | scaled, 10, 1, 0, 900, 2, 8 -> 80 | scaled, 10, 1, 0, 900 -> 9000
)");
}

TEST(clsLogDataItem, BuildsItsMask) {
  ExpectTable([](const TableRow& row) { return ItemOf(row).strDisplayFormatMask(); },
              "scaled, 1, 0, 0 -> 0 | scaled, 1, 2, 0 -> 0.00");
}

}  // namespace
}  // namespace tarnview
