#pragma once

#include <array>
#include <iterator>
#include <string_view>
#include <utility>

#include "base/Units.h"
#include "loaders/NumberShape.h"
#include "loaders/SampleFinish.h"
#include "loaders/SampleLog.h"
#include "model/Column.h"
#include "model/SampleStore.h"
#include "model/clsLogDataItems.h"

namespace tarnview {

// Tec-2 and Tec-3 logs are one design: a heading whose second line says SECONDS, then lines of fixed length.

enum class TecRule {
  Whole,          ///< an integer
  WholeFactored,  ///< an integer x factor of the column's item
  Factored,       ///< number x factor of the column's item
  Rounded,        ///< number
  Tenths,         ///< number x 10
  Hundredths,     ///< number x 100
  Correction,     ///< number x 1000 on top of 1000, which stands for none
};

struct TecField {
  Column column;
  int at, length;
  TecRule rule;
};

using TecFactors = std::array<double, kColumnCount>;

inline TecFactors FactorsOf(const clsLogDataItems& items) {
  TecFactors factors{};
  for (int column = 0; column < kColumnCount; ++column)
    factors[static_cast<std::size_t>(column)] = items.Item(column + 1).Factor();
  return factors;
}

/// What the rule makes of a field's text.
inline std::int32_t TecValue(TecRule rule, std::string_view text, double factor) {
  switch (rule) {
    case TecRule::Whole:
      return StringToLong(text);
    case TecRule::WholeFactored:
      return RoundToLong(StringToLong(text) * factor);
    case TecRule::Factored:
      return RoundToLong(ValDouble(text) * factor);
    case TecRule::Rounded:
      return RoundToLong(ValDouble(text));
    case TecRule::Tenths:
      return RoundToLong(ValDouble(text) * 10);
    case TecRule::Hundredths:
      return RoundToLong(ValDouble(text) * 100);
    case TecRule::Correction:
      return RoundToLong(ValDouble(text) * 1000 + 1000);
  }
  return 0;
}

/// The power of ten that a rule stores a number with; -1 for a rule that does more.
constexpr int ScaleOf(TecRule rule) {
  return rule == TecRule::Whole || rule == TecRule::Rounded ? 0
         : rule == TecRule::Tenths                          ? 1
         : rule == TecRule::Hundredths                      ? 2
                                                            : -1;
}

/// The same on the quick road.
template <TecField F>
std::int32_t ReadTecField(const char* line, const TecFactors& factors, LastNumber& last) {
  static_assert(F.at + F.length > static_cast<int>(kWordLength), "the eight characters before a field's end are read");
  static_assert(F.length < static_cast<int>(kWordLength));
  constexpr auto kLength = static_cast<std::size_t>(F.length);
  const char* const end = line + F.at - 1 + F.length;
  const TextWord word = WordBefore(end, kLength);
  if constexpr (ScaleOf(F.rule) >= 0) {
    if (std::int32_t stored; last.Stored(word, ScaleOf(F.rule), stored)) return stored;
  } else if constexpr (F.rule == TecRule::Factored) {
    if (ShortNumber number; ReadWord(word, number)) return RoundToLong(number.Value() * factors[F.column]);
  }
  return TecValue(F.rule, {end - kLength, kLength}, factors[F.column]);
}

/// The time of a text of eight or nine characters, in ten-thousandths.
inline std::int32_t TecTime(std::string_view text) {
  ShortNumber number;
  const bool fits = text.size() == kWordLength || text.front() == ' ';
  if (fits && ReadWord(WordBefore(text.data() + text.size(), kWordLength), number)) return number.Stored(4);
  return RoundToLong(ValDouble(text) * kStoredPerSecond);
}

/// The fields of a table, read into a row from a line that reaches behind the last of them.
template <const auto& Fields>
class TecFields {
 public:
  explicit TecFields(const TecFactors& factors) : factors_(factors) {}

  void Read(const char* line, SampleStore& store, int row) {
    [&]<std::size_t... I>(std::index_sequence<I...>) {
      (store.Set(Fields[I].column, row, ReadTecField<Fields[I]>(line, factors_, last_[I])), ...);
    }
    (std::make_index_sequence<std::size(Fields)>());
  }

 private:
  const TecFactors& factors_;
  LastNumber last_[std::size(Fields)];
};

/// All samples: `read(line, row)` of each line whose length fits, and what follows from the others of its columns.
template <class Fits, class Read>
void ReadTecLines(SampleLines lines, const LoadContext& context, const TecFactors& factors, const Fits& fits,
                  const Read& read) {
  SampleStore& store = context.log.glngDataLog;
  for (std::string_view line; lines.Next(line);) {
    if (!fits(line.size())) continue;
    const int row = store.AddRow();
    store.Set(kSample, row, row + 1);
    read(line, row);
    LowerAirTemp(store(kATemp, row), factors[kATemp], context.log);
  }
  FillBoostAndVacuum(context);
  FillWithZero(kFuelPercentM, context);
  FindFirstPlotSample(context);
}

/// The second line says SECONDS, the third is longer than `blankAt` and has a blank there. Throws where not.
void CheckTecHeading(TextLines lines, std::size_t blankAt);
/// The lines from the first one on that has a point at `pointAt`.
TextLines FromFirstPoint(TextLines lines, std::size_t pointAt);

}  // namespace tarnview
