#include "loaders/TecLine.h"

namespace tarnview {
namespace {

/// The power of ten that a rule stores a number with; -1 for a rule that does more.
int ScaleOf(TecRule rule) {
  switch (rule) {
    case TecRule::Whole:
    case TecRule::Rounded:
      return 0;
    case TecRule::Tenths:
      return 1;
    case TecRule::Hundredths:
      return 2;
    case TecRule::Seconds:
      return 4;
    default:
      return -1;
  }
}

/// Integers may have an exponent, other numbers end in front of it.
double NumberOf(TecRule rule, std::string_view text) {
  const bool whole = rule == TecRule::Whole || rule == TecRule::WholeFactored;
  if (whole) return StringToDouble(text);
  return ValDouble(text);
}

std::int32_t StoredTec(TecRule rule, double value, double factor) {
  if (rule == TecRule::Correction) return RoundToLong(value * 1000 + 1000);
  if (rule == TecRule::WholeFactored) return RoundToLong(RoundToLong(value) * factor);
  return RoundToLong(value * factor);
}

}  // namespace

void TecBlock::Store(std::span<const TecField> fields) {
  if (count_ == 0) return;
  for (const TecField& field : fields) {
    Read(field);
    Cells cells;
    Convert(field, cells);
    store_.SetRows(field.column, store_.Rows() - static_cast<int>(count_), {cells.data(), count_});
    if (field.column != kATemp) continue;
    const double factor = context_.items.Item(ItemOf(kATemp)).Factor();
    for (std::size_t line = 0; line < count_; ++line)
      LowerAirTemp(cells[line], factor, context_.log);
  }
}

void TecBlock::Read(const TecField& field) {
  const auto length = static_cast<std::size_t>(field.length);
  const std::size_t end = static_cast<std::size_t>(field.at - 1) + length;
  BlockOf<FieldKey> keys{};
  for (std::size_t line = 0; line < count_; ++line)
    keys[line] = KeyOfField(lines_[line] + end, length + 1);
  numbers_.Read(keys.data(), count_, [&](std::size_t line) {
    return NumberOf(field.rule, {lines_[line] + end - length, length});
  });
}

void TecBlock::Convert(const TecField& field, Cells& cells) const {
  if (const int scale = ScaleOf(field.rule); scale >= 0) return numbers_.Stored(scale, cells);
  const double factor = context_.items.Item(ItemOf(field.column)).Factor();
  BlockOf<double> values;
  numbers_.Values(count_, values);
  for (std::size_t line = 0; line < count_; ++line)
    cells[line] = StoredTec(field.rule, values[line], factor);
}

void CheckTecHeading(TextLines lines, std::size_t blankAt) {
  lines.Skip(1);
  const bool saysSeconds = lines.Next().starts_with("SECONDS");
  const std::string_view first = lines.Next();
  if (!saysSeconds || first.size() <= blankAt || first[blankAt - 1] != ' ')
    throw RuntimeError(5, "Not a Tec log");
}

TextLines FromFirstPoint(TextLines lines, std::size_t pointAt) {
  for (TextLines behind = lines; !behind.AtEnd(); lines = behind) {
    const std::string_view line = behind.Next();
    if (line.size() >= pointAt && line[pointAt - 1] == '.') break;
  }
  return lines;
}

}  // namespace tarnview
