#include "universal/PlainSteps.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <optional>

#include "base/Numbers.h"
#include "base/Text.h"
#include "fields/ByteMarks.h"
#include "fields/WideSteps.h"

namespace tarnview {
namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

TARNVIEW_WIDE_STEPS void WritePoints(const char* from, char* to, std::size_t length) {
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

/// A letter E, small or large: most blocks of a log have none.
TARNVIEW_WIDE_STEPS bool AnyLetterE(const char* text, std::size_t length) {
  constexpr unsigned char kSmall = 'a' - 'A';
  unsigned char any = 0;
  for (std::size_t at = 0; at < length; ++at)
    any |= static_cast<unsigned char>((static_cast<unsigned char>(text[at]) | kSmall) == 'e');
  return any != 0;
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

class ExponentWriter {
 public:
  ExponentWriter(std::string_view text, std::string& out) : text_(text), out_(out) { out_.clear(); }

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
  std::string& out_;
  std::size_t from_ = 0;  ///< the next to be copied
};

}  // namespace

std::string_view DecodeWide(std::string_view text, const PlainForm& form, std::string& out) {
  return out = PlainBytes(text, form.encoding);
}

std::string_view EndLines(std::string_view text, const PlainForm&, std::string& out) {
  out = text;
  std::replace(out.begin(), out.end(), '\r', '\n');
  return out;
}

std::string_view DropGroups(std::string_view text, const PlainForm&, std::string& out) {
  out.clear();
  std::size_t from = 0;
  for (auto at = text.find('.'); at != std::string_view::npos; at = text.find('.', at + 1)) {
    if (!IsGroupPoint(text, at)) continue;
    out.append(text, from, at - from);
    from = at + 1;
  }
  if (from == 0) return text;
  return out.append(text, from);
}

std::string_view PointForComma(std::string_view text, const PlainForm&, std::string& out) {
  out.resize(text.size());
  WritePoints(text.data(), out.data(), text.size());
  return out;
}

std::string_view WriteExponents(std::string_view text, const PlainForm&, std::string& out) {
  if (!AnyLetterE(text.data(), text.size()) || !ExponentWriter(text, out).Run()) return text;
  return out;
}

std::string_view JoinRuns(std::string_view text, const PlainForm& form, std::string& out) {
  out.resize(text.size());
  char* to = out.data();
  bool pending = false, begun = false;
  for (const char c : text) {
    if (c == form.delimiter || c == ' ' || c == '\t') {
      pending = begun;
      continue;
    }
    if (c == '\n' || c == '\r') pending = begun = false;
    if (pending) *to++ = form.delimiter;
    pending = false;
    begun = c != '\n' && c != '\r';
    *to++ = c;
  }
  out.resize(static_cast<std::size_t>(to - out.data()));
  return out;
}

}  // namespace tarnview
