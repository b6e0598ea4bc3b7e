#include "universal/DataLines.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "fields/WideSteps.h"
#include "model/Column.h"
#include "universal/TimeText.h"

namespace tarnview {
namespace {

using Kind = FieldTarget::Kind;

/// The stored integer: rounded half to even, not below `least`, which is 0 or below, and 0 where it
/// does not fit.
inline std::int32_t StoredInteger(double stored, double least) {
  constexpr double kTooLarge = 2147483648.0;
  const double rounded = WithoutFraction(
      stored > least ? stored : 0);  // too large stays so, whatever it is rounded to
  return static_cast<std::int32_t>(rounded < kTooLarge ? rounded : 0);
}

// Each of these is one plain loop over the rows of a block, which the compiler turns into steps of
// several rows.

/// Numbers to the values that a target makes of them.
void Convert(const FieldTarget& target, double* values, std::size_t rows) {
  const double before = target.before, factor = target.factor, after = target.after;
  for (std::size_t row = 0; row < rows; ++row)
    values[row] = (values[row] + before) * factor + after;
}

void Store(const FieldTarget& target, const double* values, std::int32_t* cells, std::size_t rows) {
  const double scale = target.scale, offset = target.storedOffset;
  const double least = target.negative ? std::numeric_limits<std::int32_t>::min() : 0;
  for (std::size_t row = 0; row < rows; ++row)
    cells[row] = StoredInteger(values[row] * scale + offset, least);
}

/// A bound itself counts as out of bounds. `kept` is cleared for values that are refused.
void Bound(const FieldTarget& target, double* values, bool* kept, std::size_t rows) {
  const double min = target.min, max = target.max;
  const bool setToMin = target.setToMin, setToMax = target.setToMax;
  for (std::size_t row = 0; row < rows; ++row) {
    const bool low = values[row] <= min;
    const double raised = low ? min : values[row];
    const bool high = !(raised < max);
    values[row] = high ? max : raised;
    kept[row] = kept[row] & (!low | setToMin) & (!high | setToMax);
  }
}

}  // namespace

DataLines::DataLines(const HeaderMap& header, const clsDataLog& definition, SampleStore& store)
    : header_(header),
      store_(store),
      block_(std::string_view(), definition.lngDelimiterAsciiCharacter,
             static_cast<std::size_t>(header.Fields())),
      formed_(definition.IsFormed()),
      commentPrefix_(definition.strCommentPrefix),
      secondsOfStamp_(SecondsOf(TimeFormOfName(definition.strTimeForm))),
      stampsAreTexts_(TimeFormOfName(definition.strTimeForm) >= TimeForm::Clock) {
  if (!definition.strNoValueTexts.empty()) noValues_.emplace(definition.strNoValueTexts);
  std::vector<int> fed;
  for (int field = 0; field < header.Fields(); ++field)
    for (const FieldTarget& target : header.Targets(field)) {
      anyDate_ = anyDate_ || target.kind == Kind::Date;
      if (target.kind == Kind::Time && !clock_) clock_ = static_cast<std::size_t>(field);
      if (std::find(fed.begin(), fed.end(), target.column) != fed.end())
        sharedColumns_.push_back(target.column);
      fed.push_back(target.column);
    }
}

void DataLines::Read(std::string_view line) {
  block_.Add(line);
  if (formed_ && !IsSample(line)) return block_.DropLast();
  if (anyDate_ && !firstMoment_) FindFirstMoment();
  if (block_.Full()) Flush();
}

/// The clock of a sample holds a number or a time, which no heading, mark or comment does.
bool DataLines::IsSample(std::string_view line) const {
  const std::size_t last = block_.Lines() - 1, fields = block_.Fields(last);
  if (!clock_) return fields >= 2 && (commentPrefix_.empty() || !line.starts_with(commentPrefix_));
  if (fields <= *clock_) return false;
  std::string_view stamp = Trim(block_.Field(last, *clock_));
  if (stamp.starts_with('-') || stamp.starts_with('+')) stamp.remove_prefix(1);
  const bool begins = !stamp.empty() && ((stamp[0] >= '0' && stamp[0] <= '9') || stamp[0] == '.');
  return begins || (stampsAreTexts_ && ReadTimeText(stamp));
}

/// In the line that was read last.
void DataLines::FindFirstMoment() {
  const std::size_t line = block_.Lines() - 1;
  for (std::size_t field = 0; field < block_.Fields(line); ++field)
    for (const FieldTarget& target : header_.Targets(static_cast<int>(field)))
      if (target.kind == Kind::Date && !firstMoment_)
        firstMoment_ = ParseFieldMoment(block_.Field(line, field));
}

void DataLines::Flush() {
  const int first = store_.Rows();
  for (std::size_t line = 0; line < block_.Lines(); ++line) store_.AddRow();
  Cells numbers;
  std::iota(numbers.begin(), numbers.end(), first + 1);
  store_.SetRows(kSample, first, {numbers.data(), block_.Lines()});
  for (std::size_t field = 0; field < block_.MostFields(); ++field) FlushField(field, first);
  block_.Clear();
}

/// `first` is the row of the first line that is gathered.
void DataLines::FlushField(std::size_t field, int first) {
  bool read = false;
  const auto targets = header_.Targets(static_cast<int>(field));
  const std::uint64_t gaps = noValues_ && !targets.empty() ? noValues_->In(block_, field) : 0;
  for (const FieldTarget& target : targets) {
    if (target.kind == Kind::Time) {
      if (clock_ == field) ReadStamps(field);
      continue;
    }
    Cells cells;
    if (target.bounded || Ragged(field)) TakeCells(target.column, first, cells);
    if (target.kind == Kind::Value) StoreListed(target, field, cells);
    if (target.kind == Kind::Number) {
      if (!std::exchange(read, true)) ReadNumbers(field);
      StoreNumbers(target, field, cells);
    }
    if (target.kind == Kind::Date) {
      Numbers moments;
      ReadMoments(field, moments);
      StoreValues(target, field, moments, block_.Lines(), cells);
    }
    WriteCells(target, first, gaps, cells);
  }
}

void DataLines::WriteCells(const FieldTarget& target, int first, std::uint64_t gaps, Cells& cells) {
  const bool shared = std::find(sharedColumns_.begin(), sharedColumns_.end(), target.column) !=
                      sharedColumns_.end();
  if (noValues_ && !shared)
    noValues_->Write(store_, target.column, first, block_.Lines(), gaps, cells);
  else
    store_.SetRows(target.column, first, {cells.data(), block_.Lines()});
}

/// The clock's fields of the block, in seconds.
void DataLines::ReadStamps(std::size_t field) {
  const std::size_t lines = block_.Lines(), before = stamps_.size();
  stamps_.resize(before + lines);
  if (!stampsAreTexts_) {
    ReadNumbers(field);
    Numbers values;
    numbers_.Values(lines, values);
    for (std::size_t line = 0; line < lines; ++line)
      stamps_[before + line] = values[line] * secondsOfStamp_;
    return;
  }
  for (std::size_t line = 0; line < lines; ++line) {
    const auto time = ReadTimeText(block_.Field(line, field));
    if (time && !firstStamp_) firstStamp_ = time->moment;
    stamps_[before + line] =
        time ? time->moment.Since(*firstStamp_) : std::numeric_limits<double>::quiet_NaN();
  }
}

/// What stands in the rows of the block so far: a line may leave it.
void DataLines::TakeCells(int column, int first, Cells& cells) const {
  cells.fill(0);
  if (const auto delivered = store_.Column(column); !delivered.empty())
    std::copy_n(delivered.data() + first, block_.Lines(), cells.data());
}

void DataLines::StoreNumbers(const FieldTarget& target, std::size_t field, Cells& cells) const {
  const std::size_t lines = block_.Lines();
  if (target.tens && !Ragged(field)) {
    numbers_.Stored(*target.tens, cells);
    const std::int32_t least = target.negative ? std::numeric_limits<std::int32_t>::min() : 0;
    for (std::size_t line = 0; line < lines; ++line) cells[line] = std::max(cells[line], least);
    return;
  }
  const bool once = numbers_.Alike() && !target.bounded;
  Numbers values;
  numbers_.Values(once ? 1 : lines, values);
  StoreValues(target, field, values, once ? 1 : lines, cells);
  if (once) std::fill_n(cells.begin(), lines, cells[0]);
}

/// Converts `values` as well.
TARNVIEW_WIDE_STEPS void DataLines::StoreValues(const FieldTarget& target, std::size_t field,
                                                Numbers& values, std::size_t rows,
                                                Cells& cells) const {
  Convert(target, values.data(), rows);
  if (!target.bounded && !Ragged(field)) return Store(target, values.data(), cells.data(), rows);

  BlockOf<bool> kept;
  for (std::size_t row = 0; row < rows; ++row) kept[row] = block_.Fields(row) > field;
  if (target.bounded) Bound(target, values.data(), kept.data(), rows);
  Cells stored;
  Store(target, values.data(), stored.data(), rows);
  for (std::size_t row = 0; row < rows; ++row) cells[row] = kept[row] ? stored[row] : cells[row];
}

void DataLines::ReadNumbers(std::size_t field) {
  numbers_.Read(block_, field, [&](std::size_t line) {
    if (block_.Fields(line) > field) return ValDouble(block_.Field(line, field));
    return 0.0;
  });
}

void DataLines::ReadMoments(std::size_t field, Numbers& moments) {
  if (formed_) return ReadSpans(field, moments);
  ReadColumn(block_, field, moments, [&](std::size_t line) {
    const auto moment =
        block_.Fields(line) > field ? ParseFieldMoment(block_.Field(line, field)) : std::nullopt;
    if (moment) return moment->Since(*firstMoment_);
    return 0.0;
  });
}

/// Seconds since the first time of the field itself.
void DataLines::ReadSpans(std::size_t field, Numbers& spans) {
  for (std::size_t line = 0; line < block_.Lines(); ++line) {
    const auto time =
        block_.Fields(line) > field ? ReadTimeText(block_.Field(line, field)) : std::nullopt;
    spans[line] =
        time ? time->moment.Since(firstOfField_.emplace(field, time->moment).first->second) : 0;
  }
}

void DataLines::StoreListed(const FieldTarget& target, std::size_t field, Cells& cells) const {
  for (std::size_t row = 0; row < block_.Lines(); ++row)
    if (block_.Fields(row) > field) cells[row] = (*target.values)(block_.Field(row, field));
}

}  // namespace tarnview
