#include "fields/FieldIndex.h"

#include <algorithm>
#include <bit>

#include "fields/WideSteps.h"

namespace tarnview {
namespace {

/// Of lines with very many fields a few are gathered at a time.
constexpr std::size_t kMostFieldsGathered = 1 << 16;

}  // namespace

FieldIndex::FieldIndex(std::string_view bytes, std::int32_t delimiter, std::size_t most)
    : bytes_(bytes),
      delimits_(delimiter <= 255),
      delimiter_(static_cast<char>(delimiter)),
      most_(most),
      rowLength_(most + 1),
      mostLines_(std::clamp(kMostFieldsGathered / rowLength_, std::size_t{1}, kMostLines)) {
  // The last step of a line may find that many more than are wanted; the next line overwrites them.
  keys_.resize((most + kStep + 1) * mostLines_);
  ends_.resize(rowLength_ * mostLines_ + kStep + 1);
}

TARNVIEW_WIDE_STEPS std::size_t FieldIndex::Add(std::string_view line) {
  const auto begin = static_cast<std::size_t>(line.data() - bytes_.data());
  const std::size_t length = line.size(), toNextKey = mostLines_, most = most_;
  const char* text = line.data();
  if (begin < kWordLength ||
      bytes_.size() - begin - length < kStep) {  // a key is read from before it, a step beyond
    padded_.assign(kWordLength, '\0').append(line).append(kStep, '\0');
    text = padded_.data() + kWordLength;
  }
  std::uint32_t* end = ends_.data() + lines_ * rowLength_;
  const std::uint32_t* const enough = end + most;
  FieldKey* key = keys_.data() + lines_;
  begins_[lines_] = static_cast<std::uint32_t>(begin);
  std::uint32_t last = *end = kBeforeLine;
  const auto endField = [&](std::uint32_t at) {
    *key = KeyOfField(text + at, at - last);
    key += toNextKey;
    last = *++end = at;
  };
  const char delimiter = delimiter_;
  for (std::size_t step = 0; step < length && delimits_ && end < enough; step += kStep) {
    std::uint64_t marks = MarksOf(text + step, delimiter);
    if (length - step < kStep) marks &= (std::uint64_t{1} << (length - step)) - 1;
    for (; marks; marks &= marks - 1)
      endField(static_cast<std::uint32_t>(step) +
               static_cast<std::uint32_t>(std::countr_zero(marks)));
  }
  if (end < enough && length > 0) endField(static_cast<std::uint32_t>(length));
  return Count(
      static_cast<std::size_t>(std::min<const std::uint32_t*>(end, enough) - (enough - most)));
}

/// One more line has so many fields.
std::size_t FieldIndex::Count(std::size_t fields) {
  fewestFields_ = lines_ == 0 ? fields : std::min(fewestFields_, fields);
  mostFields_ = std::max(mostFields_, fields);
  return fields_[lines_++] = fields;
}

void FieldIndex::DropLast() {
  const std::size_t left = lines_ - 1;
  Clear();
  while (lines_ < left) Count(fields_[lines_]);
}

const FieldKey* FieldIndex::Keys(std::size_t field) {
  FieldKey* const keys = keys_.data() + field * mostLines_;
  for (std::size_t line = 0; field >= fewestFields_ && line < lines_; ++line)
    if (fields_[line] <= field) keys[line] = kNoField;
  return keys;
}

}  // namespace tarnview
