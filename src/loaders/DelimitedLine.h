#pragma once

#include <string>
#include <string_view>

#include "loaders/ShortNumber.h"

namespace tarnview {

/// Whether a line has so many fields between its delimiters; an empty line has none.
inline bool HasFields(std::string_view line, char delimiter, std::size_t wanted) {
  constexpr std::size_t kStretch = 255;  // so many delimiters a byte can count, and bytes are counted many at a time
  std::size_t found = line.empty() ? 0 : 1;
  for (std::size_t at = 0; at < line.size(); at += kStretch) {
    std::uint8_t delimiters = 0;
    for (const char c : line.substr(at, kStretch))
      delimiters = static_cast<std::uint8_t>(delimiters + (c == delimiter));
    found += delimiters;
  }
  return found >= wanted;
}

/// Makes sure that behind a line a character stands that is part of no number: its end, or a NUL behind a copy of the
/// file's last line.
class EndedLine {
 public:
  explicit EndedLine(std::string_view file) : fileEnd_(file.data() + file.size()) {}

  std::string_view operator()(std::string_view line) {
    if (line.data() + line.size() != fileEnd_) return line;
    return copy_ = line;
  }

 private:
  const char* const fileEnd_;
  std::string copy_;
};

/// The fields of an ended line, read one after the other. Short fields are read faster character by character than by
/// looking for the delimiters first.
class DelimitedLine {
 public:
  DelimitedLine(std::string_view line, char delimiter)
      : at_(line.data()), end_(line.data() + line.size()), delimiter_(delimiter) {}

  /// Takes a field that is a short plain number; leaves any other where it is, though it may still be a number.
  bool TakeNumber(ShortNumber& number) {
    const char* at = at_;
    while (*at == ' ') ++at;
    const bool negative = *at == '-';
    at += negative;
    const char* const first = at;
    std::uint64_t digits = 0;
    TakeDigits(at, digits);
    auto count = at - first;
    number.places = 0;
    if (*at == '.') {
      const char* const behind = ++at;
      TakeDigits(at, digits);
      number.places = static_cast<int>(at - behind);
      count += number.places;
    }
    while (*at == ' ') ++at;
    if (static_cast<std::size_t>(count - 1) >= kMostDigits || (*at != delimiter_ && at != end_)) return false;
    number.digits = static_cast<std::int64_t>(negative ? 0 - digits : digits);
    at_ = at + (at != end_);
    return true;
  }

  std::string_view TakeText() {
    const char* const start = at_;
    const char* at = start;
    while (at != end_ && *at != delimiter_) ++at;
    at_ = at + (at != end_);
    return {start, static_cast<std::size_t>(at - start)};
  }

 private:
  static constexpr std::size_t kMostDigits = 15;  ///< more may not fit the 53 bits of a double

  static void TakeDigits(const char*& at, std::uint64_t& digits) {
    for (;; ++at) {
      const auto digit = static_cast<unsigned char>(*at - '0');
      if (digit > 9) return;
      digits = digits * 10 + digit;
    }
  }

  const char* at_;
  const char* const end_;
  const char delimiter_;
};

}  // namespace tarnview
