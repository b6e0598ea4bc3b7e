#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace tarnview {

/// A marked stretch of a log, by the first and the last `Sample` value of the stretch.
struct clsLogTag {
  std::int32_t ToSequence = 0;
  std::int32_t FromSequence = 0;
};

class clsLogTags {
 public:
  void Add(std::int32_t from, std::int32_t to) { tags_.push_back({to, from}); }
  int Count() const { return static_cast<int>(tags_.size()); }
  /// From 1 to Count.
  const clsLogTag& Item(int position) const {
    return tags_[static_cast<std::size_t>(position - 1)];
  }
  void Remove(int position) { tags_.erase(tags_.begin() + (position - 1)); }
  void RemoveAll() { tags_.clear(); }
  /// Turns tags the right way round and brings them within the log.
  void Validate(std::int32_t first, std::int32_t last);

 private:
  std::vector<clsLogTag> tags_;
};

}  // namespace tarnview
