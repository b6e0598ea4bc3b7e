#include "model/clsLogDataItems.h"

#include <algorithm>

namespace tarnview {

clsLogDataItem& clsLogDataItems::AddDirect(clsLogDataItem item) {
  std::string key = "k" + std::to_string(item.intKey);
  return items_.Add(std::move(item), std::move(key));
}

std::vector<const clsLogDataItem*> clsLogDataItems::InDisplayOrder() const {
  std::vector<const clsLogDataItem*> ordered;
  for (int position = 1; position <= Count(); ++position) ordered.push_back(&Item(position));
  std::stable_sort(
      ordered.begin(), ordered.end(),
      [](const clsLogDataItem* a, const clsLogDataItem* b) { return a->intKey < b->intKey; });
  return ordered;
}

const clsLogDataItem* clsLogDataItems::ByShortName(std::string_view name) const {
  for (int position = 1; position <= Count(); ++position)
    if (Item(position).strShortName == name) return &Item(position);
  return nullptr;
}

clsLogDataItems clsLogDataItems::Duplicate() const {
  clsLogDataItems copy;
  for (int position = 1; position <= Count(); ++position)
    copy.AddDirect(Item(position).Duplicate());
  return copy;
}

}  // namespace tarnview
