#include "universal/clsDataLogColumns.h"

#include "universal/Placement.h"

namespace tarnview {

const clsDataLogColumn& clsDataLogColumns::AddDirect(const clsDataLogColumn& objColumn, int Before,
                                                     int After) {
  const auto place = static_cast<std::ptrdiff_t>(Placement(columns_.size(), Before, After));
  columns_.insert(columns_.begin() + place, objColumn.Duplicate());
  ++uses_[objColumn.lngDataItemID];
  if (objColumn.dblOffset.IsSet() && objColumn.dblOffset != 0)
    colOffsetDataItems_.insert(objColumn.lngDataItemID);
  return objColumn;
}

void clsDataLogColumns::Remove(int position) {
  const auto use = uses_.find(Item(position).lngDataItemID);
  if (use != uses_.end() && --use->second == 0) uses_.erase(use);
  columns_.erase(columns_.begin() + (position - 1));
}

clsDataLogColumns clsDataLogColumns::Duplicate() const {
  clsDataLogColumns copy;
  copy.columns_.reserve(columns_.size());
  for (const clsDataLogColumn& column : columns_) copy.AddDirect(column);
  return copy;
}

void clsDataLogColumns::DataItemDetails(int lngDataItemID, std::string& strName,
                                        std::string& strDescription, bool& blnFound,
                                        std::string& strColumnTitles) const {
  constexpr std::string_view kBetween = ", ";
  if (!DataItemInColumns(lngDataItemID)) return;
  for (const clsDataLogColumn& column : columns_) {
    if (column.lngDataItemID != lngDataItemID) continue;
    blnFound = true;
    strName = column.strName;
    strDescription = column.strDescription;
    strColumnTitles.append(column.strColumnTitle).append(kBetween);
  }
  if (strColumnTitles.size() > kBetween.size() && strColumnTitles.ends_with(kBetween))
    strColumnTitles.resize(strColumnTitles.size() - kBetween.size());
}

}  // namespace tarnview
