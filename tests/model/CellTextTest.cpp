#include <gtest/gtest.h>

#include <random>

#include "model/Catalogue.h"
#include "model/CellText.h"

namespace tarnview {
namespace {

TEST(CellTexts, AreThoseOfTheItemsWhateverIsStored) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
  log.Clear(catalogue.gcolFixedDataItems, 400);
  std::mt19937 random(5);
  const std::int32_t odd[] = {0, 0, 1, -1, 1000, 1005, 1015, 2147483647, -2147483647 - 1, 99999};
  for (int row = 0; row < 400; ++row) {
    log.glngDataLog.AddRow();
    for (int column = 0; column < kColumnCount; ++column)
      log.glngDataLog.Set(
          column, row, row % 3 ? static_cast<std::int32_t>(random() % 3000) : odd[random() % 10]);
  }
  std::vector<int> columns;
  for (int item = 1; item <= kColumnCount; ++item) columns.push_back(item);
  CellTexts cells(log, columns);
  for (int row = 0; row < 400; ++row) {
    std::string expected;
    for (const int item : columns)
      expected += (item > 1 ? "," : "") + log.FormatDataItem(item, row);
    ASSERT_EQ(cells.Line(row), expected) << row;
  }
}

TEST(CellTexts, AreEmptyWhereNothingWasLogged) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
  log.Clear(catalogue.gcolFixedDataItems, 70);
  for (int row = 0; row < 70; ++row) log.glngDataLog.AddRow();
  log.glngDataLog.Fill(kRPM, 0, 70, 900);
  log.glngDataLog.SetGaps(kRPM, 62, 4, 0b0101);  // across two words
  CellTexts cells(log, {ItemOf(kRPM)});
  std::string text;
  for (int row = 60; row < 68; ++row) text += std::string(cells.Line(row)) + ";";
  EXPECT_EQ(text, "900;900;;900;;900;900;900;");
  EXPECT_EQ(log.glngDataLog.CountLogged(kRPM), 68);
  EXPECT_EQ(CellTexts(log, {}).Line(3), "");
}

}  // namespace
}  // namespace tarnview
