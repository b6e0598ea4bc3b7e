#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "loaders/ByteMarks.h"
#include "loaders/FieldKey.h"

namespace tarnview {

/// The fields of a block of lines. A log is read a block at a time and, in it, column by column: the fields of a column
/// are much alike, which is what the processor is quick at.
class FieldIndex {
 public:
  static constexpr std::size_t kMostLines = 64;

  /// `bytes` (below 4 GB) holds all lines to come. Fields of a line behind the first `most` are left out. Only a byte
  /// can be a delimiter; a line has but one field where `delimiter` is beyond 255.
  FieldIndex(std::string_view bytes, std::int32_t delimiter, std::size_t most);

  /// A line of `bytes`; returns its number of fields. An empty line has none.
  std::size_t Add(std::string_view line);
  void DropLast();
  bool Full() const { return lines_.size() == mostLines_; }
  void Clear();

  std::size_t Lines() const { return lines_.size(); }
  std::size_t Fields(std::size_t line) const { return lines_[line].fields; }
  std::size_t MostFields() const { return mostFields_; }  ///< of a line
  /// No line has fewer.
  std::size_t FewestFields() const { return fewestFields_; }
  std::string_view Field(std::size_t line, std::size_t field) const {
    const std::uint32_t* start = starts_.data() + lines_[line].first + field;
    return {bytes_.data() + start[0], start[1] - start[0] - 1};
  }
  /// The keys of a field in all lines, kNoField where a line has none.
  const FieldKey* Keys(std::size_t field);

 private:
  static constexpr std::size_t kStep = kMarkedBytes;

  struct Line {
    std::size_t first;  ///< of its starts
    std::size_t fields;
  };
  const std::string_view bytes_;
  const bool delimits_;
  const char delimiter_;
  const std::size_t most_, mostLines_;
  std::vector<Line> lines_;
  std::vector<std::uint32_t> starts_;  ///< of each field, and at a line's end where the next field would start
  std::vector<FieldKey> keys_;         ///< column by column, mostLines_ of each
  std::size_t used_ = 0;               ///< of starts_
  std::size_t mostFields_ = 0, fewestFields_ = 0;  ///< of a line of the block
  std::string padded_;
};

}  // namespace tarnview
