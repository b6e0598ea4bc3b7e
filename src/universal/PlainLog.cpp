#include "universal/PlainLog.h"

#include <algorithm>
#include <cstring>

#include "fields/ByteMarks.h"
#include "fields/WideSteps.h"
#include "universal/TextEncoding.h"

namespace tarnview {
namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A comma between digits becomes a point.
TARNVIEW_WIDE_STEPS void PointForComma(const char* from, char* to, std::size_t length) {
  if (length == 0) return;
  to[0] = from[0];
  to[length - 1] = from[length - 1];
  for (std::size_t at = 1; at + 1 < length; ++at) {
    const bool before = static_cast<unsigned char>(from[at - 1] - '0') <= 9;
    const bool behind = static_cast<unsigned char>(from[at + 1] - '0') <= 9;
    to[at] = (from[at] == ',') & before & behind ? '.' : from[at];
  }
}

/// Writes a text without its quotes.
class QuoteTaker {
 public:
  QuoteTaker(std::string_view text, char delimiter, bool decimalComma, std::string& out)
      : text_(text), delimiter_(delimiter), decimalComma_(decimalComma), out_(out) {}

  void Run() {
    out_.resize(text_.size());
    to_ = out_.data();
    std::size_t at = 0;
    for (; at + kMarkedBytes <= text_.size(); at += kMarkedBytes)
      for (std::uint64_t quotes = MarksOf(text_.data() + at, '"'); quotes; quotes &= quotes - 1)
        TakeQuote(at + static_cast<std::size_t>(std::countr_zero(quotes)));
    for (; at < text_.size(); ++at)
      if (text_[at] == '"') TakeQuote(at);
    Copy(text_.size());
    out_.resize(static_cast<std::size_t>(to_ - out_.data()));
  }

 private:
  void TakeQuote(std::size_t at) {
    if (quoted_ && std::memchr(text_.data() + from_, '\n', at - from_))
      quoted_ = false;  // none was closed on its line
    if (quoted_)
      CopyQuoted(at);
    else
      Copy(at);
    from_ = at + 1;
    quoted_ = !quoted_;
  }

  void Copy(std::size_t end) { to_ = std::copy(text_.data() + from_, text_.data() + end, to_); }

  /// Most quoted fields hold no delimiter.
  void CopyQuoted(std::size_t end) {
    const std::string_view field = text_.substr(from_, end - from_);
    if (field.find_first_of(std::string_view(",")) == std::string_view::npos &&
        field.find(delimiter_) == std::string_view::npos)
      return Copy(end);
    const bool number = std::all_of(field.begin(), field.end(), [](char c) {
      return IsDigit(c) || c == ',' || c == '.' || c == '-' || c == '+' || c == ' ';
    });
    for (const char c : field) {
      if (number && c == ',' && !decimalComma_) continue;  // of thousands
      if (number && c == '.' && decimalComma_) continue;
      if (number && c == ',')
        *to_++ = '.';
      else
        *to_++ = c == delimiter_ ? kQuotedDelimiter : c;
    }
  }

  const std::string_view text_;
  const char delimiter_;
  const bool decimalComma_;
  std::string& out_;
  char* to_ = nullptr;
  std::size_t from_ = 0;  ///< the next to be copied
  bool quoted_ = false;
};

/// One blank for each run of blanks and tabs, none at the ends of a line.
void JoinRuns(std::string_view text, char delimiter, std::string& out) {
  out.resize(text.size());
  char* to = out.data();
  bool pending = false, begun = false;
  for (const char c : text) {
    if (c == delimiter || c == ' ' || c == '\t') {
      pending = begun;
      continue;
    }
    if (c == '\n' || c == '\r') pending = begun = false;
    if (pending) *to++ = delimiter;
    pending = false;
    begun = c != '\n' && c != '\r';
    *to++ = c;
  }
  out.resize(static_cast<std::size_t>(to - out.data()));
}

/// Lines that a carriage return alone ends.
bool HasLinesOfReturns(std::string_view text) {
  const std::string_view head = text.substr(0, 1 << 16);
  return head.find('\n') == std::string_view::npos && head.find('\r') != std::string_view::npos;
}

std::string_view Decoded(std::string_view bytes, const clsDataLog& definition,
                         std::string& storage) {
  const auto encoding = EncodingOfName(definition.strEncoding);
  if (encoding == TextEncoding::Utf16LE || encoding == TextEncoding::Utf16BE)
    return storage = PlainBytes(bytes, *encoding);
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kMark)) bytes.remove_prefix(kMark.size());
  return bytes;
}

}  // namespace

std::string_view PlainLog(std::string_view bytes, const clsDataLog& definition,
                          std::string& storage) {
  if (!definition.IsFormed()) return bytes;
  std::string_view text = Decoded(bytes, definition, storage);
  const auto rewrite = [&](const auto& write) {
    std::string out;
    write(out);
    text = storage = std::move(out);
  };
  const char delimiter = static_cast<char>(definition.lngDelimiterAsciiCharacter);
  const bool decimalComma = definition.strDecimalSign == ",";
  if (HasLinesOfReturns(text))
    rewrite([&](std::string& out) {
      out = text;
      std::replace(out.begin(), out.end(), '\r', '\n');
    });
  if (definition.blnQuoted)
    rewrite([&](std::string& out) { QuoteTaker(text, delimiter, decimalComma, out).Run(); });
  if (decimalComma && delimiter != ',')
    rewrite([&](std::string& out) {
      out.resize(text.size());
      PointForComma(text.data(), out.data(), text.size());
    });
  if (definition.blnDelimiterRuns)
    rewrite([&](std::string& out) { JoinRuns(text, delimiter, out); });
  return text;
}

}  // namespace tarnview
