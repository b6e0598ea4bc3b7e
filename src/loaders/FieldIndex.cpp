#include "loaders/FieldIndex.h"

#include "loaders/WideSteps.h"

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
      mostLines_(std::clamp(kMostFieldsGathered / std::max<std::size_t>(most, 1), std::size_t{1}, kMostLines)) {
  // The last step of a line may find that many more than are wanted.
  keys_.resize((most + kStep + 1) * mostLines_);
  lines_.reserve(mostLines_);
}

TARNVIEW_WIDE_STEPS std::size_t FieldIndex::Add(std::string_view line) {
  const auto begin = static_cast<std::size_t>(line.data() - bytes_.data());
  const char* text = line.data();
  if (bytes_.size() - begin - line.size() < kStep) {  // a step looks beyond the line
    padded_ = line;
    padded_.append(kStep, '\0');
    text = padded_.data();
  }
  const std::size_t room = used_ + std::min(line.size(), most_) + kStep + 2;
  if (starts_.size() < room) starts_.resize(room + room / 2);
  std::uint32_t* const starts = starts_.data() + used_;
  std::uint32_t* start = starts;
  FieldKey* key = keys_.data() + lines_.size();
  const std::size_t toNextKey = mostLines_;
  std::size_t at = 0;
  *start = static_cast<std::uint32_t>(begin);
  const auto endField = [&](std::size_t end) {
    *key = KeyOfField(text + at, end - at);
    key += toNextKey;
    at = end + 1;
    *++start = static_cast<std::uint32_t>(begin + at);
  };
  const auto count = [&] { return static_cast<std::size_t>(start - starts); };
  for (std::size_t step = 0; step < line.size() && delimits_ && count() < most_; step += kStep) {
    std::uint64_t marks = MarksOf(text + step, delimiter_);
    if (line.size() - step < kStep) marks &= (std::uint64_t{1} << (line.size() - step)) - 1;
    for (; marks; marks &= marks - 1) endField(step + static_cast<std::size_t>(std::countr_zero(marks)));
  }
  if (count() < most_ && !line.empty()) endField(line.size());
  const std::size_t fields = std::min(count(), most_);
  fewestFields_ = lines_.empty() ? fields : std::min(fewestFields_, fields);
  mostFields_ = std::max(mostFields_, fields);
  lines_.push_back({used_, fields});
  used_ += fields + 1;
  return fields;
}

void FieldIndex::DropLast() {
  used_ = lines_.back().first;
  lines_.pop_back();
}

void FieldIndex::Clear() {
  lines_.clear();
  used_ = mostFields_ = 0;
}

const FieldKey* FieldIndex::Keys(std::size_t field) {
  FieldKey* const keys = keys_.data() + field * mostLines_;
  for (std::size_t line = 0; field >= fewestFields_ && line < lines_.size(); ++line)
    if (lines_[line].fields <= field) keys[line] = kNoField;
  return keys;
}

}  // namespace tarnview
