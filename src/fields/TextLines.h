#pragma once

#include <cstring>
#include <string_view>

#include "base/RuntimeError.h"

namespace tarnview {

/// The lines of a text, one after the other, without their ends (CR LF or LF; the last line needs
/// none).
class TextLines {
 public:
  explicit TextLines(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

  bool AtEnd() const { return at_ == end_; }
  /// Raises run-time error 62 behind the last line.
  std::string_view Next() {
    if (AtEnd()) throw RuntimeError(62, "Input past end of file");
    const char* const start = at_;
    const auto* feed =
        static_cast<const char*>(std::memchr(start, '\n', static_cast<std::size_t>(end_ - start)));
    const char* stop = feed ? feed : end_;
    at_ = feed ? feed + 1 : end_;
    if (stop != start && stop[-1] == '\r') --stop;
    return current_ = {start, static_cast<std::size_t>(stop - start)};
  }
  void Skip(int lines) {
    while (lines-- > 0) Next();
  }
  /// The line that Next gave last.
  std::string_view Current() const { return current_; }

 private:
  const char* at_;
  const char* end_;
  std::string_view current_;
};

}  // namespace tarnview
