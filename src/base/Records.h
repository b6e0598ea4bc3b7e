#pragma once

#include <utility>
#include <vector>

namespace tarnview {

/// An ordered collection of plain records. Positions count from 1; adding and removing move the
/// records in memory.
template <class OneRecord>
class Records {
 public:
  using Record = OneRecord;

  /// Adds the record as it stands, at the end.
  Record& AddDirect(Record record) { return records_.emplace_back(std::move(record)); }
  /// Adds it in front of the record at that position, 1 to Count + 1.
  Record& AddDirect(Record record, int before) {
    return *records_.insert(records_.begin() + (before - 1), std::move(record));
  }

  int Count() const { return static_cast<int>(records_.size()); }
  /// 1 to Count.
  Record& Item(int position) { return records_[static_cast<std::size_t>(position - 1)]; }
  const Record& Item(int position) const {
    return records_[static_cast<std::size_t>(position - 1)];
  }
  void Remove(int position) { records_.erase(records_.begin() + (position - 1)); }

  auto begin() const { return records_.begin(); }
  auto end() const { return records_.end(); }

 protected:
  std::vector<Record> records_;
};

}  // namespace tarnview
