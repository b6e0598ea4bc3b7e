#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "universal/clsDataLogColumn.h"

namespace tarnview {

/// The columns of a definition, in order.
class clsDataLogColumns {
 public:
  /// Stores a duplicate at the place that Placement tells, and returns the column passed in.
  const clsDataLogColumn& AddDirect(const clsDataLogColumn& objColumn, int Before = 0,
                                    int After = 0);

  int Count() const { return static_cast<int>(columns_.size()); }
  /// 1 to Count.
  const clsDataLogColumn& Item(int position) const {
    return columns_[static_cast<std::size_t>(position - 1)];
  }
  void Remove(int position);
  auto begin() const { return columns_.begin(); }
  auto end() const { return columns_.end(); }

  clsDataLogColumns Duplicate() const;

  /// Name and description of the last column of an item; the titles of all of them are joined to
  /// `strColumnTitles` with ", ". Without such a column nothing changes.
  void DataItemDetails(int lngDataItemID, std::string& strName, std::string& strDescription,
                       bool& blnFound, std::string& strColumnTitles) const;
  bool DataItemInColumns(int lngDataItemID) const { return uses_.contains(lngDataItemID); }
  /// Items whose columns were added with an offset other than 0.
  const std::set<int>& OffsetDataItems() const { return colOffsetDataItems_; }

 private:
  std::vector<clsDataLogColumn> columns_;
  std::map<int, int> uses_;  ///< item to its number of columns
  std::set<int> colOffsetDataItems_;
};

}  // namespace tarnview
