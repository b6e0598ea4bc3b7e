#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Collection.h"
#include "model/clsLogDataItem.h"

namespace tarnview {

/// Data items in the order of their columns, so that Item(n) is the item of column n - 1; keyed "k"
/// + intKey.
class clsLogDataItems {
 public:
  clsLogDataItems() = default;
  clsLogDataItems(clsLogDataItems&&) = default;
  clsLogDataItems& operator=(clsLogDataItems&&) = default;

  /// Adds the item under its key.
  clsLogDataItem& AddDirect(clsLogDataItem item);
  int Count() const { return items_.Count(); }
  clsLogDataItem& Item(int position) { return items_.Item(position); }
  const clsLogDataItem& Item(int position) const { return items_.Item(position); }
  /// By key "k68"; nullptr if there is none.
  const clsLogDataItem* Item(std::string_view key) const { return items_.Item(key); }
  void RemoveAll() { items_.RemoveAll(); }

  /// The items in the order in which users see them: by intKey.
  std::vector<const clsLogDataItem*> InDisplayOrder() const;
  /// The first item of that short name; nullptr if there is none.
  const clsLogDataItem* ByShortName(std::string_view name) const;

  clsLogDataItems Duplicate() const;

 private:
  Collection<clsLogDataItem> items_;
};

}  // namespace tarnview
