#include "universal/NoValues.h"

#include <algorithm>
#include <bit>

#include "base/Text.h"
#include "fields/WideSteps.h"

namespace tarnview {
namespace {

std::optional<FieldKey> KeyOf(std::string_view text) {
  constexpr std::size_t kLongest = 7;
  if (!kWordsAreReadable || text.size() > kLongest) return std::nullopt;
  std::string padded(8, '\0');
  padded += text;
  return KeyOfField(padded.data() + padded.size(), text.size() + 1);
}

/// Loggers mark a channel that is not there by numbers just above the least of 32 bits.
bool IsLeastNumber(std::string_view field) {
  return field.size() == 11 && field.starts_with("-21474836");
}

/// The last character of a field stands in its key's highest byte.
bool EndsInDigit(FieldKey key) {
  const auto last = static_cast<unsigned char>(key >> 56);
  return static_cast<unsigned char>(last - '0') <= 9;
}

TARNVIEW_WIDE_STEPS bool AllEndInDigits(const FieldKey* keys, std::size_t lines) {
  std::uint64_t others = 0;
  for (std::size_t line = 0; line < lines; ++line) {
    const std::uint64_t last = (keys[line] >> 56) - '0';  // far beyond 9 below "0"
    others |= std::uint64_t{last > 9};
  }
  return others == 0;
}

std::uint64_t BitsOf(std::size_t lines) {
  return lines == 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << lines) - 1;
}

}  // namespace

NoValues::NoValues(std::string_view texts) {
  for (const std::string& text : Split(texts, '|')) {
    for (const std::string& spelled : {text, Upper(text), " " + text, " " + Upper(text)}) {
      const auto key = KeyOf(spelled);
      if (key && std::find(keys_.begin(), keys_.end(), *key) == keys_.end()) keys_.push_back(*key);
    }
    longs_.push_back(text);
    anyEndsInDigit_ =
        anyEndsInDigit_ || (!text.empty() && text.back() >= '0' && text.back() <= '9');
  }
  for (const char* blanks : {" ", "  "})
    if (const auto key = KeyOf(blanks)) keys_.push_back(*key);
}

bool NoValues::IsLongNoValue(std::string_view field) const {
  field = Trim(field);
  return field.empty() || IsLeastNumber(field) ||
         std::any_of(longs_.begin(), longs_.end(),
                     [&](const std::string& text) { return SameIgnoringCase(text, field); });
}

std::uint64_t NoValues::In(FieldIndex& block, std::size_t field) const {
  const FieldKey* const keys = block.Keys(field);
  const std::size_t lines = block.Lines();
  if (!anyEndsInDigit_ && AllEndInDigits(keys, lines)) return 0;
  std::uint64_t gaps = 0;
  FieldKey last = kEmptyField;  // fields of texts are often like the one above
  bool lastIsNone = true;
  for (std::size_t line = 0; line < lines; ++line) {
    const FieldKey key = keys[line];
    bool none = lastIsNone;
    if (key == kOtherField)
      none = IsLongNoValue(block.Field(line, field));
    else if (key != last)
      none = key == kEmptyField || key == kNoField || Knows(key);
    if (key != kOtherField) {
      last = key;
      lastIsNone = none;
    }
    gaps |= std::uint64_t{none} << line;
  }
  return gaps;
}

/// Numbers end in a digit, which no text for no value does unless a definition says so.
bool NoValues::Knows(FieldKey key) const {
  const bool digit = EndsInDigit(key);
  return (!digit || anyEndsInDigit_) && std::find(keys_.begin(), keys_.end(), key) != keys_.end();
}

void NoValues::Write(SampleStore& store, int column, int first, std::size_t lines,
                     std::uint64_t gaps, BlockOf<std::int32_t>& cells) {
  if (gaps != 0) store.SetGaps(column, first, lines, gaps);
  const auto known = last_.find(column);
  if (known == last_.end() && gaps == BitsOf(lines)) return;  // nothing yet
  std::int32_t last = 0;
  if (known != last_.end()) {
    last = known->second;
  } else {
    last = cells[static_cast<std::size_t>(std::countr_zero(~gaps))];
    store.Fill(column, 0, first, last);
  }
  for (std::size_t line = 0; line < lines && gaps != 0; ++line) {
    if (gaps >> line & 1)
      cells[line] = last;
    else
      last = cells[line];
  }
  last_[column] = gaps != 0 ? last : cells[lines - 1];
  store.SetRows(column, first, {cells.data(), lines});
}

}  // namespace tarnview
