#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "fields/FieldColumn.h"
#include "model/SampleStore.h"

namespace tarnview {

/// Fields of a log that hold no value: the cells of their column keep the last one, and the store
/// remembers that none was logged.
class NoValues {
 public:
  /// Texts with "|" between; an empty field is one as well.
  explicit NoValues(std::string_view texts);

  /// A bit for each line of the block whose field holds no value.
  std::uint64_t In(FieldIndex& block, std::size_t field) const;

  /// Puts the last value into the cells of `lines` lines that have none, and writes all of them to
  /// the store from row `first` on. What stands in front of a column's first value becomes that
  /// value.
  void Write(SampleStore& store, int column, int first, std::size_t lines, std::uint64_t gaps,
             BlockOf<std::int32_t>& cells);

 private:
  bool IsLongNoValue(std::string_view field) const;
  bool Knows(FieldKey key) const;

  std::vector<FieldKey> keys_;      ///< of the short texts, with a blank in front as well
  std::vector<std::string> longs_;  ///< the others
  bool anyEndsInDigit_ = false;     ///< of these texts
  std::unordered_map<int, std::int32_t> last_;  ///< by column
};

}  // namespace tarnview
