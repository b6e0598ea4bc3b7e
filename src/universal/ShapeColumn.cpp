#include "universal/ShapeColumn.h"

#include <algorithm>
#include <array>

#include "base/Text.h"

namespace tarnview {
namespace {

constexpr std::size_t kFirstValues = 3, kMostListed = 256, kLongestListed = 60;
constexpr int kMostPlaces = 5;

/// What is gathered of a column.
struct Gathering {
  std::array<int, 5> kinds{};
  std::vector<double> numbers;
  bool listable = true;

  int Of(FieldKind kind) const { return kinds[static_cast<std::size_t>(kind)]; }
};

void TakeListed(ShapeColumn& column, std::string_view field, Gathering& gathered) {
  if (!gathered.listable ||
      std::find(column.texts.begin(), column.texts.end(), field) != column.texts.end())
    return;
  gathered.listable = field.size() <= kLongestListed && column.texts.size() < kMostListed;
  column.texts.emplace_back(field);
}

void TakeField(ShapeColumn& column, std::string_view field, char decimalSign, Gathering& gathered) {
  const FieldKind kind = KindOfField(field, decimalSign);
  ++gathered.kinds[static_cast<std::size_t>(kind)];
  if (kind == FieldKind::Empty || kind == FieldKind::NoValue) return;
  if (column.first.size() < kFirstValues) column.first.emplace_back(field);
  if (const auto number =
          kind == FieldKind::Number ? ReadShapeNumber(field, decimalSign) : std::nullopt) {
    gathered.numbers.push_back(number->value);
    if (column.unit.empty()) column.unit = number->unit;
    column.places = std::max(column.places, std::min(number->places, kMostPlaces));
  } else {
    TakeListed(column, field, gathered);
  }
}

/// A text or two among many numbers does not make a list of them.
ColumnContent ContentOf(const Gathering& gathered) {
  const int numbers = gathered.Of(FieldKind::Number), times = gathered.Of(FieldKind::Time),
            texts = gathered.Of(FieldKind::Text), all = numbers + times + texts;
  if (all == 0) return ColumnContent::Empty;
  if (numbers * 10 >= all * 9) return ColumnContent::Number;
  if (times * 10 >= all * 9) return ColumnContent::Time;
  if (gathered.listable) return ColumnContent::List;
  return ColumnContent::Text;
}

void TakeNumbers(ShapeColumn& column, std::vector<double>& numbers) {
  if (numbers.empty()) return;
  const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
  std::nth_element(numbers.begin(), middle, numbers.end());
  column.median = *middle;
  const auto [lowest, highest] = std::minmax_element(numbers.begin(), numbers.end());
  column.lowest = *lowest;
  column.highest = *highest;
}

}  // namespace

void DescribeColumn(ShapeColumn& column, const ShapeTable& table, char decimalSign) {
  Gathering gathered;
  const auto field = static_cast<std::size_t>(column.field);
  for (const auto& line : table)
    if (field < line.size()) TakeField(column, line[field], decimalSign, gathered);
  column.content = ContentOf(gathered);
  column.gaps = gathered.Of(FieldKind::Empty) + gathered.Of(FieldKind::NoValue);
  column.values =
      gathered.Of(FieldKind::Number) + gathered.Of(FieldKind::Time) + gathered.Of(FieldKind::Text);
  TakeNumbers(column, gathered.numbers);
  // Numbers among listed texts are entries, too.
  if (column.content == ColumnContent::List && gathered.Of(FieldKind::Number) > 0)
    for (const auto& line : table)
      if (field < line.size() && ReadShapeNumber(line[field], decimalSign))
        TakeListed(column, line[field], gathered);
  if (column.content == ColumnContent::List && !gathered.listable)
    column.content = ColumnContent::Text;
  if (column.content != ColumnContent::List) column.texts.clear();
}

}  // namespace tarnview
