#include "universal/DataLines.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

#include "base/Numbers.h"
#include "fields/WideSteps.h"
#include "model/Column.h"

namespace tarnview {
namespace {

using Kind = FieldTarget::Kind;

/// The stored integer: rounded half to even, not below `least`, which is 0 or below, and 0 where it does not fit.
inline std::int32_t StoredInteger(double stored, double least) {
  constexpr double kTooLarge = 2147483648.0;
  const double rounded = WithoutFraction(stored > least ? stored : 0);  // too large stays so, whatever it is rounded to
  return static_cast<std::int32_t>(rounded < kTooLarge ? rounded : 0);
}

// Each of these is one plain loop over the rows of a block, which the compiler turns into steps of several rows.

/// Numbers to the values that a target makes of them.
void Convert(const FieldTarget& target, double* values, std::size_t rows) {
  const double before = target.before, factor = target.factor, after = target.after;
  for (std::size_t row = 0; row < rows; ++row) values[row] = (values[row] + before) * factor + after;
}

void Store(const FieldTarget& target, const double* values, std::int32_t* cells, std::size_t rows) {
  const double scale = target.scale, offset = target.storedOffset;
  const double least = target.negative ? std::numeric_limits<std::int32_t>::min() : 0;
  for (std::size_t row = 0; row < rows; ++row) cells[row] = StoredInteger(values[row] * scale + offset, least);
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

DataLines::DataLines(const HeaderMap& header, std::int32_t delimiter, std::string_view bytes, SampleStore& store)
    : header_(header), store_(store), block_(bytes, delimiter, static_cast<std::size_t>(header.Fields())) {
  for (int field = 0; field < header.Fields(); ++field)
    for (const FieldTarget& target : header.Targets(field)) anyDate_ = anyDate_ || target.kind == Kind::Date;
}

void DataLines::Read(std::string_view line) {
  block_.Add(line);
  if (anyDate_ && !firstMoment_) FindFirstMoment();
  if (block_.Full()) Flush();
}

/// In the line that was read last.
void DataLines::FindFirstMoment() {
  const std::size_t line = block_.Lines() - 1;
  for (std::size_t field = 0; field < block_.Fields(line); ++field)
    for (const FieldTarget& target : header_.Targets(static_cast<int>(field)))
      if (target.kind == Kind::Date && !firstMoment_) firstMoment_ = ParseFieldMoment(block_.Field(line, field));
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
  for (const FieldTarget& target : header_.Targets(static_cast<int>(field))) {
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
    store_.SetRows(target.column, first, {cells.data(), block_.Lines()});
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
TARNVIEW_WIDE_STEPS void DataLines::StoreValues(const FieldTarget& target, std::size_t field, Numbers& values,
                                                std::size_t rows, Cells& cells) const {
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
    return block_.Fields(line) > field ? ValDouble(block_.Field(line, field)) : 0;
  });
}

void DataLines::ReadMoments(std::size_t field, Numbers& moments) {
  ReadColumn(block_, field, moments, [&](std::size_t line) {
    const auto moment = block_.Fields(line) > field ? ParseFieldMoment(block_.Field(line, field)) : std::nullopt;
    return moment ? moment->Since(*firstMoment_) : 0;
  });
}

void DataLines::StoreListed(const FieldTarget& target, std::size_t field, Cells& cells) const {
  for (std::size_t row = 0; row < block_.Lines(); ++row)
    if (block_.Fields(row) > field) cells[row] = (*target.values)(block_.Field(row, field));
}

}  // namespace tarnview
