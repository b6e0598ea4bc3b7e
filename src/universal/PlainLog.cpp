#include "universal/PlainLog.h"

#include <algorithm>

#include "base/Text.h"

namespace tarnview {
namespace {

/// A block and what is made of it stay in a processor's cache.
constexpr std::size_t kBlock = 128 << 10;
constexpr std::size_t kLookedAt = 64 << 10;
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

bool IsWide(const PlainForm& form) {
  return form.encoding == TextEncoding::Utf16LE || form.encoding == TextEncoding::Utf16BE;
}

/// Lines that a carriage return alone ends.
bool HasLinesOfReturns(std::string_view head) {
  return head.find('\n') == std::string_view::npos && head.find('\r') != std::string_view::npos;
}

}  // namespace

PlainLog::PlainLog(std::string_view bytes, const clsDataLog& definition)
    : bytes_(bytes), whole_(!definition.IsFormed()) {
  form_.encoding = EncodingOfName(definition.strEncoding).value_or(TextEncoding::Windows1252);
  form_.delimiter = static_cast<char>(definition.lngDelimiterAsciiCharacter);
  form_.decimalComma = definition.strDecimalSign == ",";
  if (!whole_) ChooseSteps(definition);
  Read();
}

void PlainLog::ChooseSteps(const clsDataLog& definition) {
  std::string head(bytes_.substr(0, kLookedAt));
  if (IsWide(form_)) {
    steps_.push_back(DecodeWide);
    head = PlainBytes(head, form_.encoding);
  } else if (bytes_.starts_with(kUtf8Mark)) {
    bytes_.remove_prefix(kUtf8Mark.size());
  }
  if (HasLinesOfReturns(head)) {
    steps_.push_back(EndLines);
    lineEnd_ = '\r';
  }
  if (definition.blnQuoted) steps_.push_back(TakeQuotes);
  if (form_.decimalComma && form_.delimiter != ',') {
    steps_.push_back(DropGroups);
    steps_.push_back(PointForComma);
  }
  steps_.push_back(WriteExponents);
  if (definition.blnDelimiterRuns) steps_.push_back(JoinRuns);
}

void PlainLog::Read() {
  end_ = EndOfBlock();
  block_ = bytes_.substr(begin_, end_ - begin_);
  std::size_t turn = 0;
  for (const PlainStep step : steps_) {
    const std::string_view text = step(block_, form_, written_[turn]);
    if (text.data() == written_[turn].data()) turn = 1 - turn;
    block_ = text;
  }
  rest_ = block_;
}

/// Behind the first line that ends a block's length from its beginning.
std::size_t PlainLog::EndOfBlock() const {
  if (whole_ || bytes_.size() - begin_ <= kBlock) return bytes_.size();
  for (auto at = bytes_.find(lineEnd_, begin_ + kBlock); at != std::string_view::npos;
       at = bytes_.find(lineEnd_, at + 1)) {
    if (!IsWide(form_)) return at + 1;
    const std::size_t unit = at / 2 * 2;
    if (PlainBytes(bytes_.substr(unit, 2), form_.encoding)[0] == lineEnd_) return unit + 2;
  }
  return bytes_.size();
}

void PlainLog::NextBlock() {
  begin_ = end_;
  Read();
}

bool PlainLog::Skip(long lines) {
  while (lines-- > 0) {
    if (AtEnd()) return false;
    std::string_view line;
    TakeLine(rest_, line);
    if (rest_.empty()) NextBlock();
  }
  return true;
}

std::string_view PlainLog::Line() const {
  std::string_view rest = rest_, line;
  TakeLine(rest, line);
  return line;
}

void PlainLog::Restart() {
  if (begin_ > 0) {
    begin_ = 0;
    Read();
  }
  rest_ = block_;
}

double PlainLog::ExpectedLines() const {
  if (AtEnd()) return 0;
  const std::string_view sample = rest_.substr(0, kLookedAt);
  const auto lines = static_cast<double>(std::count(sample.begin(), sample.end(), '\n')) + 1;
  const double blocks = static_cast<double>(bytes_.size()) / static_cast<double>(end_ - begin_);
  return lines * blocks * static_cast<double>(block_.size()) / static_cast<double>(sample.size());
}

}  // namespace tarnview
