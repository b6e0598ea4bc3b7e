#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/Numbers.h"

namespace tarnview {

/// A line whose fields stand at fixed positions, counted from 1. Fields up to `Reach` are read
/// without a look at the line's length: behind its end stand NUL characters.
template <std::size_t Reach>
class FixedLine {
 public:
  explicit FixedLine(std::string_view line) : text_(line.data()), length_(line.size()) {
    if (length_ >= Reach) return;
    std::memset(padded_, 0, Reach);
    if (length_) std::memcpy(padded_, text_, length_);
    text_ = padded_;
  }
  FixedLine(const FixedLine&) = delete;

  std::size_t Length() const { return length_; }
  /// `at` up to Reach, or to Length() where the line is longer.
  char At(int at) const { return text_[at - 1]; }
  /// Shorter, or empty, at the line's end.
  std::string_view Text(int at, int length) const {
    const auto start = static_cast<std::size_t>(at - 1), wanted = static_cast<std::size_t>(length);
    if (start + wanted <= length_) return {text_ + start, wanted};
    if (start < length_) return std::string_view(text_ + start, length_ - start);
    return std::string_view();
  }
  bool Has(int at, std::string_view word) const {
    return Text(at, static_cast<int>(word.size())) == word;
  }

  /// StringToDouble, StringToLong of a field of up to 8 characters.
  double Number(int at, int length) const {
    std::int32_t digits;
    if (OnlyDigits(at, length, digits)) return digits;
    return StringToDouble(Text(at, length));
  }
  std::int32_t Whole(int at, int length) const {
    std::int32_t digits;
    if (OnlyDigits(at, length, digits)) return digits;
    return StringToLong(Text(at, length));
  }

 private:
  /// Most fields are blanks and digits: their value is got without a detour through a double.
  bool OnlyDigits(int at, int length, std::int32_t& value) const {
    value = 0;
    bool blanks = true;
    for (const char* next = text_ + (at - 1); length > 0; --length, ++next) {
      const auto digit = static_cast<unsigned char>(*next - '0');
      if (digit <= 9) {
        value = value * 10 + digit;
        blanks = false;
      } else if (*next != ' ' || !blanks) {
        return false;
      }
    }
    return true;
  }

  const char* text_;
  std::size_t length_;
  char padded_[Reach];
};

}  // namespace tarnview
