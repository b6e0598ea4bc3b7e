#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "universal/TextEncoding.h"

namespace tarnview {

/// What of a file is looked at to find its shape: its two ends, as lines of Windows-1252 text.
/// Neither a copy nor a move keeps the lines in place, so there is none.
struct ShapeText {
  static constexpr std::size_t kHead = 256 << 10, kTail = 64 << 10;  ///< bytes of the file

  explicit ShapeText(std::string_view bytes, std::optional<TextEncoding> encoding = {});
  ShapeText(const ShapeText&) = delete;
  ShapeText& operator=(const ShapeText&) = delete;

  EncodingGuess encoding;
  std::vector<std::string_view> head,
      tail;  ///< whole lines, without their ends; no line stands in both

 private:
  std::string headText_, tailText_;
};

/// The lines of a text: they end in LF, CR LF or, where there is no LF, CR.
std::vector<std::string_view> LinesOf(std::string_view text);

}  // namespace tarnview
