#include "universal/clsDataLogColumnValues.h"

#include <utility>

#include "universal/Placement.h"

namespace tarnview {

clsDataLogColumnValues::Entry clsDataLogColumnValues::Add(std::string strDataLogValue,
                                                          std::int32_t lngDataLogTranslation,
                                                          const std::string& strKey) {
  auto entry = std::make_shared<clsDataLogColumnValue>();
  entry->strDataLogValue = std::move(strDataLogValue);
  entry->lngDataLogTranslation = lngDataLogTranslation;
  if (!strKey.empty()) keys_.emplace(strKey, entry);
  return AddDirect(std::move(entry));
}

clsDataLogColumnValues::Entry clsDataLogColumnValues::AddDirect(Entry objValue, int Before,
                                                                int After) {
  const auto place = static_cast<std::ptrdiff_t>(Placement(values_.size(), Before, After));
  return *values_.insert(values_.begin() + place, std::move(objValue));
}

clsDataLogColumnValues::Entry clsDataLogColumnValues::Item(const std::string& key) const {
  const auto found = keys_.find(key);
  if (found == keys_.end()) return nullptr;
  return found->second;
}

void clsDataLogColumnValues::Remove(int position) {
  const auto entry = values_.begin() + (position - 1);
  std::erase_if(keys_, [&](const auto& key) { return key.second == *entry; });
  values_.erase(entry);
}

clsDataLogColumnValues clsDataLogColumnValues::Duplicate() const {
  clsDataLogColumnValues copy;
  for (const Entry& value : values_)
    copy.AddDirect(std::make_shared<clsDataLogColumnValue>(value->Duplicate()));
  return copy;
}

}  // namespace tarnview
