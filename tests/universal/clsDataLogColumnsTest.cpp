#include <gtest/gtest.h>

#include "support/Table.h"
#include "universal/clsDataLogColumns.h"

namespace tarnview {
namespace {

clsDataLogColumn Column(const std::string& title, int item) {
  clsDataLogColumn column;
  column.strName = "Name of " + title;
  column.strDescription = "About " + title;
  column.strColumnTitle = title;
  column.lngDataItemID = item;
  return column;
}

TEST(clsDataLogColumn, KnowsWhatWasWrittenAndSharesItsValues) {
  clsDataLogColumn column;
  EXPECT_FALSE(column.dblOffset.IsSet() || column.lngColumnDecimalPlaces.IsSet());
  column.dblOffset = 0;
  column.lngConversionType = 7;
  EXPECT_EQ(column.lngConversionType, kDateAndTime);
  column.lngConversionType = -5;
  EXPECT_EQ(column.lngConversionType, kPlainNumber);
  const clsDataLogColumn copy = column.Duplicate();
  EXPECT_TRUE(copy.dblOffset.IsSet() && copy.lngColumnDecimalPlaces.IsSet());
  EXPECT_FALSE(copy.dblMinValue.IsSet());
  copy.objColumnValues->Add("On", 0);
  EXPECT_EQ(column.objColumnValues->Count(), 1);
}

TEST(clsDataLogColumns, GoWhereTheyAreSent) {
  clsDataLogColumns columns;
  // The title, before and after which it goes, the titles then, and the items with an offset.
  const auto add = [&](const TableRow& row) {
    clsDataLogColumn column = Column(row.Text(0), 3 + row.Int(3) / 10);
    if (row.Text(3) != "unset") column.dblOffset = row.Number(3);
    columns.AddDirect(column, row.Int(1), row.Int(2));
    std::string told;
    const clsDataLogColumns copy = columns.Duplicate();
    for (const clsDataLogColumn& one : copy) told += one.strColumnTitle;
    for (const int item : copy.OffsetDataItems()) told += " " + std::to_string(item);
    return told;
  };
  ExpectTable(add, R"(
b, 0, 0, unset -> b | d, 0, 0, 0 -> bd | a, 1, 0, 20 -> abd 5 | c, 0, 2, 10 -> abcd 4 5 | e, 9, 9, 10 -> abcde 4 5 | x, 1, 3, unset -> xabcde 4 5
)");
  columns.Remove(1);
  EXPECT_EQ(columns.Item(1).strColumnTitle, "a");
}

TEST(clsDataLogColumns, TellOfAnItem) {
  clsDataLogColumns columns;
  for (const char* title : {"TitleA", "TitleB"}) columns.AddDirect(Column(title, 5));
  std::string name = "n", description = "d", titles;
  bool found = false;
  for (const int item : {6, 5}) {
    columns.DataItemDetails(item, name, description, found, titles);
    EXPECT_EQ(found, item == 5);
    EXPECT_EQ(name + "|" + description + "|" + titles,
              found ? "Name of TitleB|About TitleB|TitleA, TitleB" : "n|d|");
  }
  columns.Remove(1);
  EXPECT_TRUE(columns.DataItemInColumns(5));
  columns.Remove(1);
  EXPECT_FALSE(columns.DataItemInColumns(5));
}

TEST(clsDataLogColumnValues, KeepOrderAndKeys) {
  clsDataLogColumnValues values;
  values.Add("Off", 0, "k0");
  values.AddDirect(values.Add("On", 1), 1);
  EXPECT_EQ(values.Item(1), values.Item(3));
  EXPECT_EQ(values.Item("k0")->strDataLogValue, "Off");
  const clsDataLogColumnValues copy = values.Duplicate();
  copy.Item(2)->strDataLogValue = "changed";
  EXPECT_EQ(values.Item(2)->strDataLogValue, "Off");
  values.Remove(2);
  EXPECT_EQ(values.Item("k0"), nullptr);
}

}  // namespace
}  // namespace tarnview
