#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include "fields/ByteMarks.h"
#include "universal/PlainSteps.h"
#include "universal/Units.h"

namespace tarnview {
namespace {

/// Writes a text without its quotes.
class QuoteTaker {
 public:
  QuoteTaker(std::string_view text, const PlainForm& form, std::string& out)
      : text_(text), form_(form), out_(out) {}

  void Run() {
    out_.resize(text_.size() + kCopied);
    Place place{out_.data()};
    std::size_t at = 0;
    for (; at + kMarkedBytes + kCopied <= text_.size(); at += kMarkedBytes)
      place = TakeStep(place, at);
    for (; at < text_.size(); ++at)
      if (text_[at] == '"') place = TakeQuote(place, at);
    char* const end = Copy(place, text_.size());
    out_.resize(static_cast<std::size_t>(end - out_.data()));
  }

 private:
  static constexpr std::size_t kCopied = 16;  ///< bytes in one go: most fields are shorter

  /// A value of its own, so that it stays in registers while characters are written.
  struct Place {
    char* to;
    std::size_t from = 0;  ///< the next to be copied
    bool quoted = false;
    bool special = false;  ///< a delimiter, a comma or a line's end stands in what is to be copied
  };

  /// The kMarkedBytes bytes from `first` on, behind which kCopied bytes can be read.
  Place TakeStep(Place place, std::size_t first) const {
    const char* const bytes = text_.data() + first;
    std::uint64_t special =
        MarksOf(bytes, ',') | MarksOf(bytes, form_.delimiter) | MarksOf(bytes, '\n');
    for (std::uint64_t quotes = MarksOf(bytes, '"'); quotes; quotes &= quotes - 1) {
      const std::uint64_t before = (quotes & -quotes) - 1;
      const std::size_t at = first + static_cast<std::size_t>(std::countr_zero(quotes));
      place.special |= (special & before) != 0;
      special &= ~before;
      if (at - place.from > kCopied || (place.quoted && place.special)) {
        place = TakeQuote(place, at);
        continue;
      }
      std::memcpy(place.to, text_.data() + place.from, kCopied);
      place = {place.to + (at - place.from), at + 1, !place.quoted};
    }
    place.special |= special != 0;
    return place;
  }

  Place TakeQuote(Place place, std::size_t at) const {
    const std::string_view field = text_.substr(place.from, at - place.from);
    if (field.find('\n') != std::string_view::npos)
      place.quoted = false;  // none closed on its line
    const bool delimited = field.find(',') != std::string_view::npos ||
                           field.find(form_.delimiter) != std::string_view::npos;
    if (place.quoted && delimited)
      place.to = WriteQuoted(field, place.to);
    else
      place.to = Copy(place, at);
    return {place.to, at + 1, !place.quoted};
  }

  char* Copy(const Place& place, std::size_t end) const {
    return std::copy(text_.data() + place.from, text_.data() + end, place.to);
  }

  /// A field with a delimiter in it.
  char* WriteQuoted(std::string_view field, char* to) const {
    const auto rest = std::min(field.find_first_not_of("0123456789,.-+ "), field.size());
    const bool number = rest == field.size() || (rest > 0 && IsUnit(field.substr(rest)));
    for (const char c : field) {
      if (number && c == ',' && !form_.decimalComma) continue;  // of thousands
      if (number && c == '.' && form_.decimalComma) continue;
      if (number && c == ',')
        *to++ = '.';
      else
        *to++ = c == form_.delimiter ? kQuotedDelimiter : c;
    }
    return to;
  }

  const std::string_view text_;
  const PlainForm& form_;
  std::string& out_;
};

}  // namespace

std::string_view TakeQuotes(std::string_view text, const PlainForm& form, std::string& out) {
  QuoteTaker(text, form, out).Run();
  return out;
}

}  // namespace tarnview
