#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace tarnview {

/// Where the fields of a block of lines stand. It looks for delimiters in 64 bytes at a time, so that whoever reads the
/// fields need not wait for the end of each before the next one can begin.
class FieldIndex {
 public:
  /// `bytes` (below 4 GB) holds all lines to come. Fields of a line behind the first `most` are left out.
  FieldIndex(std::string_view bytes, std::int32_t delimiter, std::size_t most)
      : bytes_(bytes), delimits_(delimiter <= 255), delimiter_(static_cast<unsigned char>(delimiter)), most_(most) {}

  void Clear() {
    lines_.clear();
    used_ = 0;
  }
  std::size_t Lines() const { return lines_.size(); }
  std::size_t TotalFields() const { return used_; }

  /// A line of `bytes`; returns its number of fields. An empty line has none.
  std::size_t Add(std::string_view line);

  std::size_t Fields(std::size_t line) const { return lines_[line].fields; }
  std::string_view Field(std::size_t line, std::size_t field) const {
    const std::uint32_t* start = starts_.data() + lines_[line].first + field;
    return {bytes_.data() + start[0], start[1] - start[0] - 1};
  }
  /// Whether so many bytes can be read from a field's start on, whatever its length.
  bool Readable(std::string_view field, std::size_t reach) const {
    return static_cast<std::size_t>(bytes_.data() + bytes_.size() - field.data()) >= reach;
  }

 private:
  static constexpr std::size_t kStep = 64;
  std::uint64_t Marks(std::size_t at) const;
  std::uint64_t MarksOfWord(const char* at) const;

  struct Line {
    std::size_t first;  ///< of its starts
    std::size_t fields;
  };
  const std::string_view bytes_;
  const bool delimits_;  ///< false: no byte is the delimiter
  const std::uint64_t delimiter_;
  const std::size_t most_;
  std::vector<Line> lines_;
  std::vector<std::uint32_t> starts_;  ///< of each field, and at a line's end where the next field would start
  std::size_t used_ = 0;
};

inline std::size_t FieldIndex::Add(std::string_view line) {
  const auto begin = static_cast<std::size_t>(line.data() - bytes_.data()), end = begin + line.size();
  const std::size_t room = used_ + std::min(line.size(), most_) + kStep + 2;
  if (starts_.size() < room) starts_.resize(room + room / 2);
  std::uint32_t* const starts = starts_.data() + used_;
  starts[0] = static_cast<std::uint32_t>(begin);
  std::size_t count = 0;
  for (std::size_t at = begin; at < end && delimits_ && count < most_; at += kStep) {
    std::uint64_t marks = Marks(at);
    if (end - at < kStep) marks &= (std::uint64_t{1} << (end - at)) - 1;
    for (; marks; marks &= marks - 1)
      starts[++count] = static_cast<std::uint32_t>(at + static_cast<std::size_t>(std::countr_zero(marks)) + 1);
  }
  if (count < most_ && !line.empty()) starts[++count] = static_cast<std::uint32_t>(end + 1);
  count = std::min(count, most_);
  lines_.push_back({used_, count});
  used_ += count + 1;
  return count;
}

/// A bit for each of the 64 bytes at `at` that is the delimiter.
inline std::uint64_t FieldIndex::Marks(std::size_t at) const {
  char padded[kStep] = {};
  const char* from = bytes_.data() + at;
  if (bytes_.size() - at < kStep) {
    std::memcpy(padded, from, bytes_.size() - at);
    from = padded;
  }
  std::uint64_t marks = 0;
  for (int word = 0; word < 8; ++word) marks |= MarksOfWord(from + word * 8) << word * 8;
  return marks;
}

inline std::uint64_t FieldIndex::MarksOfWord(const char* at) const {
  constexpr std::uint64_t kEach = 0x0101010101010101u, kLow = kEach * 0x7F;
  std::uint64_t text;
  std::memcpy(&text, at, sizeof text);
  const std::uint64_t different = text ^ kEach * delimiter_;
  std::uint64_t same = ~(((different & kLow) + kLow) | different | kLow) >> 7;  // a 1 for each equal byte
  if constexpr (std::endian::native == std::endian::big) {
    std::uint64_t swapped = 0;
    for (int byte = 0; byte < 8; ++byte) swapped |= (same >> byte * 8 & 1) << (7 - byte) * 8;
    same = swapped;
  }
  return same * 0x0102040810204080u >> 56;  // the eight of them side by side
}

}  // namespace tarnview
