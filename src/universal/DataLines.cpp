#include "universal/DataLines.h"

#include <algorithm>
#include <limits>

#include "base/Numbers.h"
#include "universal/FieldNumber.h"

namespace tarnview {
namespace {

using Kind = FieldTarget::Kind;

/// Lines of very many fields are gathered a few at a time.
constexpr std::size_t kMostFieldsGathered = 1 << 16;

/// The stored integer: rounded half to even, not below 0, and 0 where it does not fit.
inline std::int32_t StoredInteger(double stored) {
  constexpr double kJustTooLarge = 2147483648.0;
  constexpr double kNoFraction = 6755399441055744.0;  // as in RoundHalfEven, without its look at the range
  stored = stored > 0 ? stored : 0;
  stored = stored < kJustTooLarge ? stored : kJustTooLarge;
  const auto rounded = static_cast<std::int64_t>(stored + kNoFraction - kNoFraction);
  return rounded > std::numeric_limits<std::int32_t>::max() ? 0 : static_cast<std::int32_t>(rounded);
}

// Each of these is one plain loop over the rows of a block, which the compiler turns into steps of several rows.

void Divide(const std::int32_t* figures, const double* powers, double* numbers, std::size_t rows) {
  for (std::size_t row = 0; row < rows; ++row) numbers[row] = figures[row] / powers[row];
}

void Convert(const FieldTarget& target, const double* numbers, double* values, std::size_t rows) {
  const double before = target.before, factor = target.factor, after = target.after;
  for (std::size_t row = 0; row < rows; ++row) values[row] = (numbers[row] + before) * factor + after;
}

void Store(const FieldTarget& target, const double* values, std::int32_t* cells, std::size_t rows) {
  const double scale = target.scale, offset = target.storedOffset;
  for (std::size_t row = 0; row < rows; ++row) cells[row] = StoredInteger(values[row] * scale + offset);
}

/// A bound itself counts as out of bounds. `kept` is cleared for values that are refused.
void Bound(const FieldTarget& target, double* values, bool* kept, std::size_t rows) {
  for (std::size_t row = 0; row < rows; ++row) {
    double& value = values[row];
    const bool low = value <= target.min;
    if (low) value = target.min;
    if (low && !target.setToMin) {
      kept[row] = false;
      continue;
    }
    if (value < target.max) continue;
    value = target.max;
    if (!target.setToMax) kept[row] = false;
  }
}

}  // namespace

DataLines::DataLines(const HeaderMap& header, std::int32_t delimiter, std::string_view bytes, SampleStore& store)
    : header_(header), store_(store), index_(bytes, delimiter, static_cast<std::size_t>(header.Fields())) {
  for (int field = 0; field < header.Fields(); ++field)
    for (const FieldTarget& target : header.Targets(field)) anyDate_ = anyDate_ || target.kind == Kind::Date;
}

void DataLines::Read(std::string_view line) {
  const std::size_t fields = index_.Add(line);
  mostFields_ = std::max(mostFields_, fields);
  leastFields_ = std::min(leastFields_, fields);
  if (anyDate_ && !firstMoment_) FindFirstMoment();
  if (index_.Lines() == kMostRows || index_.TotalFields() > kMostFieldsGathered) Flush();
}

/// In the line that was read last.
void DataLines::FindFirstMoment() {
  const std::size_t line = index_.Lines() - 1;
  for (std::size_t field = 0; field < index_.Fields(line); ++field)
    for (const FieldTarget& target : header_.Targets(static_cast<int>(field)))
      if (target.kind == Kind::Date && !firstMoment_) firstMoment_ = ParseFieldMoment(index_.Field(line, field));
}

void DataLines::Flush() {
  const int first = store_.Rows(), end = first + static_cast<int>(index_.Lines());
  for (int row = first; row < end; ++row) store_.Set(0, store_.AddRow(), row + 1);
  for (std::size_t field = 0; field < mostFields_; ++field) FlushField(field, first);
  index_.Clear();
  mostFields_ = 0;
  leastFields_ = kAnyNumber;
}

/// `first` is the row of the first line that is gathered.
void DataLines::FlushField(std::size_t field, int first) {
  const std::size_t rows = index_.Lines();
  Numbers numbers;
  Kind read = Kind::Nothing;  // what `numbers` holds: the targets of a field mostly read it alike
  for (const FieldTarget& target : header_.Targets(static_cast<int>(field))) {
    if (target.kind != read && target.kind == Kind::Number) ReadNumbers(field, numbers);
    if (target.kind != read && target.kind == Kind::Date) ReadMoments(field, numbers);
    read = target.kind;
    const bool delivered = !store_.Column(target.column).empty();
    std::array<std::int32_t, kMostRows> zeros{};
    std::int32_t* const cells = delivered ? store_.Writable(target.column).data() + first : zeros.data();
    if (target.kind == Kind::Value)
      StoreValues(target, field, cells);
    else
      StoreNumbers(target, field, numbers, cells);
    for (std::size_t row = 0; row < rows && !delivered; ++row)
      store_.Set(target.column, first + static_cast<int>(row), cells[row]);
  }
}

void DataLines::StoreNumbers(const FieldTarget& target, std::size_t field, const Numbers& numbers,
                             std::int32_t* cells) const {
  const std::size_t rows = index_.Lines();
  Numbers values;
  Convert(target, numbers.data(), values.data(), rows);
  if (!target.bounded && field < leastFields_) return Store(target, values.data(), cells, rows);

  std::array<bool, kMostRows> kept;
  for (std::size_t row = 0; row < rows; ++row) kept[row] = index_.Fields(row) > field;
  if (target.bounded) Bound(target, values.data(), kept.data(), rows);
  std::array<std::int32_t, kMostRows> stored;
  Store(target, values.data(), stored.data(), rows);
  for (std::size_t row = 0; row < rows; ++row) cells[row] = kept[row] ? stored[row] : cells[row];
}

void DataLines::ReadNumbers(std::size_t field, Numbers& numbers) const {
  std::array<std::int32_t, kMostRows> figures{};
  Numbers powers;
  powers.fill(1);
  std::array<std::size_t, kMostRows> others;  // rows of fields that are not short and plain
  std::size_t count = 0;
  // Most quantities of a log change slower than its lines come: what was read last is often read again.
  std::uint64_t last = 0;
  std::size_t lastSize = 0;
  std::int32_t lastFigures = 0;
  double lastPower = 1;
  for (std::size_t row = 0; row < index_.Lines(); ++row) {
    if (index_.Fields(row) <= field) continue;
    const std::string_view text = index_.Field(row, field);
    if (text.size() - 1 >= kShortField || !index_.Readable(text, kShortField)) {
      others[count++] = row;
      continue;
    }
    const std::uint64_t word = FieldWord(text);
    if (word != last || text.size() != lastSize) {
      if (!ReadFieldWord(word, text.size(), lastFigures, lastPower)) {
        others[count++] = row;
        lastSize = 0;
        continue;
      }
      last = word;
      lastSize = text.size();
    }
    figures[row] = lastFigures;
    powers[row] = lastPower;
  }
  Divide(figures.data(), powers.data(), numbers.data(), index_.Lines());
  for (std::size_t i = 0; i < count; ++i) numbers[others[i]] = ValDouble(index_.Field(others[i], field));
}

void DataLines::ReadMoments(std::size_t field, Numbers& numbers) const {
  numbers.fill(0);
  for (std::size_t row = 0; row < index_.Lines(); ++row) {
    if (index_.Fields(row) <= field) continue;
    if (const auto moment = ParseFieldMoment(index_.Field(row, field))) numbers[row] = moment->Since(*firstMoment_);
  }
}

void DataLines::StoreValues(const FieldTarget& target, std::size_t field, std::int32_t* cells) const {
  for (std::size_t row = 0; row < index_.Lines(); ++row)
    if (index_.Fields(row) > field) cells[row] = (*target.values)(index_.Field(row, field));
}

}  // namespace tarnview
