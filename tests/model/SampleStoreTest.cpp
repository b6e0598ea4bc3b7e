#include <gtest/gtest.h>

#include <string>

#include "model/SampleStore.h"

namespace tarnview {
namespace {

/// The cells of a column that was delivered.
std::string Told(const SampleStore& store, int column) {
  std::string cells;
  for (const std::int32_t cell : store.Column(column)) cells += std::to_string(cell) + " ";
  return cells;
}

TEST(SampleStore, UndeliveredColumnsReadAsZeroAndCostNothing) {
  SampleStore store;
  store.Prepare(3, 10);
  store.AddRow();
  store.AddRow();
  store.Set(1, 1, 0);
  EXPECT_EQ(store.DeliveredBytes(), 0u);
  store.Set(2, 1, -7);
  EXPECT_EQ(store.DeliveredBytes(), 2 * sizeof(std::int32_t));
  EXPECT_EQ(Told(store, 1) + "/ " + Told(store, 2), "/ 0 -7 ");
  EXPECT_EQ(store(2, 1), -7);
  EXPECT_EQ(store(0, 0), 0);
}

TEST(SampleStore, GrowsFarPastTheGuessAndKeepsEveryCell) {
  constexpr int kRows = 310000, kColumns = 80;
  SampleStore store;
  store.Prepare(kColumns, 1);
  for (int row = 0; row < kRows; ++row) {
    store.AddRow();
    store.Set(0, row, row);
    if (row % 1000 == 999) store.Set(kColumns - 1, row, -row);
  }
  ASSERT_EQ(store.Rows(), kRows);
  for (int row = 0; row < kRows; ++row) {
    ASSERT_EQ(store(0, row), row);
    ASSERT_EQ(store(kColumns - 1, row), row % 1000 == 999 ? -row : 0);
  }
}

TEST(SampleStore, FillsAStretchAndMakesNoColumnOfZeros) {
  SampleStore store;
  store.Prepare(2, 0);
  for (int i = 0; i < 5; ++i) store.AddRow();
  store.Fill(0, 0, 5, 0);
  EXPECT_EQ(Told(store, 0), "");
  store.Fill(0, 1, 3, 9);
  store.Fill(0, 2, 3, 0);
  store.Fill(0, 4, 4, 8);
  EXPECT_EQ(Told(store, 0), "0 9 0 0 0 ");
  const std::int32_t zeros[] = {0, 0}, values[] = {7, 0, 9};
  store.SetRows(1, 1, zeros);
  EXPECT_EQ(Told(store, 1), "");
  store.SetRows(1, 2, values);
  store.SetRows(1, 3, zeros);
  EXPECT_EQ(Told(store, 1), "0 0 7 0 0 ");
  store.Writable(0)[0] = 5;
  store.Prepare(3, 100);
  EXPECT_EQ(store.Rows() + store.Columns(), 3) << "empty again";
  store.AddRow();
  EXPECT_EQ(store(0, 0), 0);
  EXPECT_EQ(store.Writable(0)[0], 0);
}

}  // namespace
}  // namespace tarnview
