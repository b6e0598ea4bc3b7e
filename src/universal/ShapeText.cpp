#include "universal/ShapeText.h"

#include <algorithm>

namespace tarnview {
namespace {

/// A line that the cut goes through is no line.
std::string_view WithoutLastLine(std::string_view text) {
  const auto end = text.find_last_of("\n\r");
  if (end == std::string_view::npos) return text;
  return text.substr(0, end + 1);
}

std::string_view WithoutFirstLine(std::string_view text) {
  auto at = text.find('\n');
  if (at == std::string_view::npos) at = text.find('\r');
  if (at == std::string_view::npos) return std::string_view();
  return text.substr(at + 1);
}

}  // namespace

ShapeText::ShapeText(std::string_view bytes, std::optional<TextEncoding> settled)
    : encoding(GuessEncoding(bytes)) {
  if (settled) encoding = {*settled, 0, 100, "it was chosen"};
  if (encoding.score == 0) return;
  const bool whole = bytes.size() <= kHead;
  headText_ = PlainBytes(bytes.substr(0, kHead), encoding.encoding);
  head = LinesOf(whole ? std::string_view(headText_) : WithoutLastLine(headText_));
  if (whole) return;
  const std::size_t from = std::max(kHead, bytes.size() - std::min(kTail, bytes.size())) / 2 * 2;
  tailText_ = PlainBytes(bytes.substr(from), encoding.encoding);
  tail = LinesOf(WithoutFirstLine(tailText_));
}

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  const char end = text.find('\n') == std::string_view::npos ? '\r' : '\n';
  while (!text.empty()) {
    const auto at = std::min(text.find(end), text.size());
    std::string_view line = text.substr(0, at);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    text.remove_prefix(std::min(at + 1, text.size()));
  }
  return lines;
}

}  // namespace tarnview
