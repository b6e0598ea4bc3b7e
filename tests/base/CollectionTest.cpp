#include <gtest/gtest.h>

#include "base/Collection.h"

namespace tarnview {
namespace {

TEST(Collection, ItemsGoByPlaceOrKey) {
  Collection<int> items;
  for (const char* key : {"a", "b", "c", "d"}) items.Add(key[0], key);
  items.Remove(2);
  items.Remove("d");
  ASSERT_EQ(items.Count(), 2);
  EXPECT_EQ(items.Item(1), 'a');
  EXPECT_EQ(items.Item(2), 'c');
  EXPECT_EQ(items.Item("b"), nullptr);
  EXPECT_EQ(*items.Item("c"), 'c');
}

}  // namespace
}  // namespace tarnview
