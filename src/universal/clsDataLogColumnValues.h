#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

/// One entry of a value list: a text of the log and the number that is stored for it.
class clsDataLogColumnValue {
 public:
  std::string strDataLogValue;
  std::int32_t lngDataLogTranslation = 0;

  clsDataLogColumnValue Duplicate() const { return *this; }
};

/// The value list of a column, in order. It shares its entries with whoever added them.
class clsDataLogColumnValues {
 public:
  using Entry = std::shared_ptr<clsDataLogColumnValue>;

  /// A new entry at the end; by `strKey` too where that is not empty.
  Entry Add(std::string strDataLogValue, std::int32_t lngDataLogTranslation,
            const std::string& strKey = "");
  /// The entry itself, at the place that Placement tells.
  Entry AddDirect(Entry objValue, int Before = 0, int After = 0);

  int Count() const { return static_cast<int>(values_.size()); }
  /// 1 to Count.
  const Entry& Item(int position) const { return values_[static_cast<std::size_t>(position - 1)]; }
  /// By key; null if there is none.
  Entry Item(const std::string& key) const;
  void Remove(int position);
  auto begin() const { return values_.begin(); }
  auto end() const { return values_.end(); }

  /// Copies of all entries.
  clsDataLogColumnValues Duplicate() const;

 private:
  std::vector<Entry> values_;
  std::map<std::string, Entry> keys_;
};

}  // namespace tarnview
