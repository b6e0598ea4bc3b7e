#include "universal/PlainLog.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <optional>

#include "base/Numbers.h"
#include "base/Text.h"
#include "fields/ByteMarks.h"
#include "fields/WideSteps.h"
#include "universal/TextEncoding.h"
#include "universal/Units.h"

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
    const bool between = (from[at] == ',') & before & behind;
    to[at] = between ? '.' : from[at];
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
  /// Fields are short: they are copied and looked at in one loop.
  void TakeQuote(std::size_t at) {
    bool delimited = false, lineEnds = false;
    char* to = to_;
    for (std::size_t next = from_; next < at; ++next) {
      const char c = text_[next];
      delimited |= (c == ',') | (c == delimiter_);
      lineEnds |= c == '\n';
      *to++ = c;
    }
    if (lineEnds) quoted_ = false;  // none was closed on its line
    if (quoted_ && delimited)
      CopyQuoted(at);
    else
      to_ = to;
    from_ = at + 1;
    quoted_ = !quoted_;
  }

  void Copy(std::size_t end) { to_ = std::copy(text_.data() + from_, text_.data() + end, to_); }

  /// A field with a delimiter in it.
  void CopyQuoted(std::size_t end) {
    const std::string_view field = text_.substr(from_, end - from_);
    const auto rest = std::min(field.find_first_not_of("0123456789,.-+ "), field.size());
    const bool number = rest == field.size() || (rest > 0 && IsUnit(field.substr(rest)));
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

/// The number with a sign of groups at `at`: three digits behind it and none more, up to three in
/// front that do not begin with 0. A clock's fraction ("01.250") and a date are none.
bool IsGroupPoint(std::string_view text, std::size_t at) {
  const auto digit = [&](std::size_t place) { return place < text.size() && IsDigit(text[place]); };
  for (std::size_t behind = 1; behind <= 3; ++behind)
    if (!digit(at + behind)) return false;
  std::size_t first = at;
  while (first > 0 && IsDigit(text[first - 1])) --first;
  const std::size_t digits = at - first;
  const bool within = first > 0 && (text[first - 1] == '.' || text[first - 1] == ':');
  return !digit(at + 4) && digits >= 1 && digits <= 3 && text[first] != '0' &&
         (!within || (text[first - 1] == '.' && digits == 3 && IsGroupPoint(text, first - 1)));
}

/// "1.234,5" becomes "1234,5".
void DropGroups(std::string_view text, std::string& out) {
  std::size_t from = 0;
  for (auto at = text.find('.'); at != std::string_view::npos; at = text.find('.', at + 1)) {
    if (!IsGroupPoint(text, at)) continue;
    out.append(text, from, at - from);
    from = at + 1;
  }
  out.append(text, from);
}

/// A number that ends in an exponent.
struct ScientificNumber {
  std::size_t begin = 0, end = 0;
  double value = 0;
};

/// The number whose exponent's letter stands at `at`; nothing for a letter of a word.
std::optional<ScientificNumber> NumberAround(std::string_view text, std::size_t at) {
  const auto isPart = [](char c) { return IsDigit(c) || c == '.' || c == '-' || c == '+'; };
  ScientificNumber number{at, at + 1, 0};
  while (number.begin > 0 && isPart(text[number.begin - 1])) --number.begin;
  while (number.end < text.size() && isPart(text[number.end])) ++number.end;
  if (number.begin == at || (number.begin > 0 && IsLetter(text[number.begin - 1])) ||
      (number.end < text.size() && IsLetter(text[number.end])))
    return std::nullopt;
  const std::string_view digits = text.substr(number.begin, number.end - number.begin);
  if (!IsNumeric(digits)) return std::nullopt;
  number.value = StringToDouble(digits);
  return number;
}

/// "1.5e-02" becomes "0.015000000": fields are read to their first letter.
class ExponentWriter {
 public:
  explicit ExponentWriter(std::string_view text) : text_(text) {}

  /// False where the text holds none.
  bool Run() {
    std::size_t at = 0;
    for (; at + kMarkedBytes <= text_.size(); at += kMarkedBytes) {
      const char* const bytes = text_.data() + at;
      for (std::uint64_t marks = MarksOf(bytes, 'e') | MarksOf(bytes, 'E'); marks;
           marks &= marks - 1)
        TakeLetter(at + static_cast<std::size_t>(std::countr_zero(marks)));
    }
    for (; at < text_.size(); ++at)
      if (text_[at] == 'e' || text_[at] == 'E') TakeLetter(at);
    if (from_ > 0) out_.append(text_, from_);
    return from_ > 0;
  }

  std::string Take() { return std::move(out_); }

 private:
  void TakeLetter(std::size_t at) {
    constexpr double kMost = 1e15;
    if (at <= from_ || (!IsDigit(text_[at - 1]) && text_[at - 1] != '.')) return;
    const auto number = NumberAround(text_, at);
    if (!number || std::fabs(number->value) > kMost) return;
    out_.append(text_, from_, number->begin - from_);
    char written[40];
    const int length = std::snprintf(written, sizeof written, "%.9f", number->value);
    out_.append(written, static_cast<std::size_t>(length));
    from_ = number->end;
  }

  const std::string_view text_;
  std::string out_;
  std::size_t from_ = 0;  ///< the next to be copied
};

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
  if (decimalComma && delimiter != ',') {
    if (text.find('.') != std::string_view::npos)
      rewrite([&](std::string& out) { DropGroups(text, out); });
    rewrite([&](std::string& out) {
      out.resize(text.size());
      PointForComma(text.data(), out.data(), text.size());
    });
  }
  if (ExponentWriter writer(text); writer.Run()) text = storage = writer.Take();
  if (definition.blnDelimiterRuns)
    rewrite([&](std::string& out) { JoinRuns(text, delimiter, out); });
  return text;
}

}  // namespace tarnview
