#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fields/ByteMarks.h"
#include "fields/FieldKey.h"

namespace tarnview {

/// The fields of a block of lines. A log is read a block at a time and, in it, column by column:
/// the fields of a column are much alike, which is what the processor is quick at.
class FieldIndex {
 public:
  static constexpr std::size_t kMostLines = 64;

  /// `bytes` (below 4 GB) holds all lines to come. Fields of a line behind the first `most` are
  /// left out. Only a byte can be a delimiter; a line has but one field where `delimiter` is beyond
  /// 255.
  FieldIndex(std::string_view bytes, std::int32_t delimiter, std::size_t most);

  /// The lines to come stand in other bytes; those gathered are forgotten.
  void Begin(std::string_view bytes) {
    bytes_ = bytes;
    Clear();
  }
  /// A line of `bytes`; returns its number of fields. An empty line has none.
  std::size_t Add(std::string_view line);
  void DropLast();
  bool Full() const { return lines_ == mostLines_; }
  void Clear() { lines_ = mostFields_ = fewestFields_ = 0; }

  std::size_t Lines() const { return lines_; }
  std::size_t Fields(std::size_t line) const { return fields_[line]; }
  std::size_t MostFields() const { return mostFields_; }      ///< of a line
  std::size_t FewestFields() const { return fewestFields_; }  ///< no line has fewer
  std::string_view Field(std::size_t line, std::size_t field) const {
    const std::uint32_t* before = ends_.data() + line * rowLength_ + field;
    const std::uint32_t start = before[0] + 1;
    return {bytes_.data() + begins_[line] + start, before[1] - start};
  }
  /// The keys of a field in all lines, kNoField where a line has none.
  const FieldKey* Keys(std::size_t field);

 private:
  static constexpr std::size_t kStep = kMarkedBytes;
  static constexpr std::uint32_t kBeforeLine =
      ~std::uint32_t{0};  ///< where a field before the first would end

  std::size_t Count(std::size_t fields);

  std::string_view bytes_;
  const bool delimits_;
  const char delimiter_;
  const std::size_t most_, rowLength_, mostLines_;
  std::size_t lines_ = 0;
  std::array<std::size_t, kMostLines> fields_;    ///< of each line
  std::array<std::uint32_t, kMostLines> begins_;  ///< of each line, in the bytes
  std::vector<std::uint32_t>
      ends_;  ///< a row a line: kBeforeLine, and in the line the end of each field
  std::vector<FieldKey> keys_;                     ///< column by column, mostLines_ of each
  std::size_t mostFields_ = 0, fewestFields_ = 0;  ///< of a line of the block
  std::string padded_;
};

}  // namespace tarnview
