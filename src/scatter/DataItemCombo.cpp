#include "scatter/DataItemCombo.h"

#include <algorithm>

namespace tarnview {
namespace {}  // namespace

void DataItemCombo::SetItems(const DataItemList& items) {
  const int before = Item();
  std::vector<std::string> names;
  items_.clear();
  for (const clsLogDataItem* item : items) {
    items_.push_back(item->intSeq);
    names.push_back(item->strLongName);
  }
  combo_.SetList(std::move(names));
  if (!SearchImageComboForDataItem(before)) DataItemImageComboDefault();
}

int DataItemCombo::Item() const {
  const int entry = combo_.ListIndex();
  if (entry < 0) return 0;
  return items_[static_cast<std::size_t>(entry)];
}

bool DataItemCombo::SearchImageComboForDataItem(int item) {
  const auto found = std::find(items_.begin(), items_.end(), item);
  if (found == items_.end()) return false;
  combo_.SetListIndex(static_cast<int>(found - items_.begin()));
  return true;
}

void DataItemCombo::DataItemImageComboDefault() { combo_.SetListIndex(0); }

void DataItemCombo::Choose(int item, Messages& messages, bool blnQuiet) {
  if (SearchImageComboForDataItem(item)) return;
  if (!blnQuiet)
    messages.ShowMessage(Message::DataItemNotFound, false, "Data Item: " + std::to_string(item));
  DataItemImageComboDefault();
}

}  // namespace tarnview
