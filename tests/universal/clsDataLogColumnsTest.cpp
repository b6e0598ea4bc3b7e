#include <gtest/gtest.h>

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

std::string Titles(const clsDataLogColumns& columns) {
  std::string titles;
  for (const auto& column : columns) titles += column.strColumnTitle;
  return titles;
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
  columns.AddDirect(Column("b", 3));
  columns.AddDirect(Column("d", 3));
  columns.AddDirect(Column("a", 3), 1);
  columns.AddDirect(Column("c", 3), 0, 2);
  columns.AddDirect(Column("e", 3), 9, 9);
  columns.AddDirect(Column("x", 3), 1, 3);
  EXPECT_EQ(Titles(columns), "xabcde");
  columns.Remove(1);
  EXPECT_EQ(Titles(columns.Duplicate()), "abcde");
}

TEST(clsDataLogColumns, KnowTheItemsWithAnOffset) {
  clsDataLogColumns columns;
  const auto add = [&](int item, double offset) {
    clsDataLogColumn column = Column("t", item);
    column.dblOffset = offset;
    columns.AddDirect(column);
  };
  add(5, 10);
  add(5, 20);
  add(7, 0);
  columns.AddDirect(Column("t", 9));
  EXPECT_EQ(columns.OffsetDataItems(), std::set<int>{5});
  EXPECT_EQ(columns.Duplicate().OffsetDataItems(), std::set<int>{5});
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
