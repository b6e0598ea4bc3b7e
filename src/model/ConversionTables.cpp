#include "model/ConversionTables.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Numbers.h"
#include "base/Text.h"

namespace tarnview {
namespace {

struct Keyed {
  const ConversionTable& table;
  bool reverse;

  double Key(std::size_t row) const {
    if (reverse) return table[row].second;
    return table[row].first;
  }
  std::int32_t Output(std::size_t row) const {
    if (reverse) return table[row].first;
    return table[row].second;
  }
};

constexpr std::string_view kHeadings[] = {"TARNVIEW CONVERSION TABLE",
                                          "TARNVIEW AUX INPUT CONVERSION TABLE"};

bool IsHeading(std::string_view line) {
  return std::find(std::begin(kHeadings), std::end(kHeadings), Upper(Trim(line))) !=
         std::end(kHeadings);
}

/// Where the value would lie if the keys were evenly spaced.
std::size_t FirstGuess(double value, const Keyed& rows, std::size_t last) {
  const double low = rows.Key(0);
  const double guess =
      RoundHalfEven((value - low) / (rows.Key(last) - low) * static_cast<double>(last));
  return static_cast<std::size_t>(std::clamp(guess, 0.0, static_cast<double>(last)));
}

std::int32_t Between(std::int32_t value, const Keyed& rows, std::size_t a, std::size_t b,
                     bool interpolate) {
  if (!interpolate) return ReturnClosest(value, rows.Output(a), rows.Output(b));
  if (rows.Key(a) > rows.Key(b)) std::swap(a, b);
  return RoundToLong(LinearInterpolate(rows.Key(a), rows.Key(b), value, rows.Output(a),
                                       rows.Output(b), /*clamp=*/false));
}

}  // namespace

const ConversionTable& DefaultO2Table() {
  static const ConversionTable table{
      {83, 14700},  {84, 14300},  {85, 14300},  {86, 14000},  {87, 13800},
      {88, 13600},  {89, 13400},  {90, 13300},  {91, 13000},  {92, 12900},
      {93, 12800},  {94, 12700},  {95, 12600},  {96, 12500},  {97, 12400},
      {98, 12300},  {99, 12100},  {100, 12000}, {101, 11700}, {102, 11500},
      {103, 11400}, {104, 11200}, {105, 11100}, {106, 11000}, {107, 10900}};
  return table;
}

const ConversionTable& DefaultAuxTable() {
  static const ConversionTable table{
      // clang-format off
      {0, 8410},     {156, 8520},   {312, 8640},   {468, 8810},   {624, 8980},   {780, 9090},   {936, 9260},
      {1092, 9440},  {1248, 9610},  {1404, 9780},  {1560, 9950},  {1716, 10120}, {1872, 10290}, {2028, 10470},
      {2184, 10690}, {2340, 10920}, {2496, 11150}, {2652, 11380}, {2808, 11670}, {2964, 11950}, {3120, 12240},
      {3276, 12580}, {3432, 12920}, {3588, 13270}, {3744, 13670}, {3900, 14130}, {4056, 14640}, {4212, 15210},
      {4368, 15840}, {4524, 16530}, {4680, 17270}, {4836, 18190}, {4992, 19440}};
  // clang-format on
  return table;
}

std::int32_t OxygenTableOutput(std::int32_t input) {
  constexpr std::array<std::int32_t, 29> kOutputs{
      15000, 14850, 14700, 14600, 14500, 14400, 14350, 14300, 14250, 14200,
      14150, 14100, 14000, 14000, 13950, 13900, 13850, 13800, 13750, 13650,
      13600, 13500, 13400, 13250, 13000, 12500, 12000, 11500, 11000};
  return kOutputs[static_cast<std::size_t>(std::clamp(input, 60, 88) - 60)];
}

ConversionTable ParseConversionTable(std::string_view text) {
  ConversionTable table;
  std::string_view line;
  if (!TakeLine(text, line) || !IsHeading(line)) return table;
  while (TakeLine(text, line)) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos || line.front() == '=' || line.back() == '=') continue;
    table.emplace_back(StringToLong(line.substr(0, equals)), StringToLong(line.substr(equals + 1)));
  }
  return table;
}

std::int32_t TableLookup(std::int32_t value, const ConversionTable& table, bool interpolate,
                         bool reverse) {
  if (table.empty()) return 0;
  const Keyed rows{table, reverse};
  const std::size_t last = table.size() - 1;
  if (rows.Key(0) == rows.Key(last)) return rows.Output(0);

  std::size_t row = FirstGuess(value, rows, last);
  if (rows.Key(row) == value) return rows.Output(row);
  const bool below = rows.Key(row) < value;
  const bool up = below == (rows.Key(last) > rows.Key(0));
  for (;;) {
    const std::size_t from = row;
    if (row == (up ? last : 0)) return rows.Output(row);
    if (up)
      row = row + 1;
    else
      row = row - 1;
    if (rows.Key(row) == value) return rows.Output(row);
    if ((rows.Key(row) < value) != below) return Between(value, rows, from, row, interpolate);
  }
}

std::int32_t ReturnClosest(std::int32_t target, std::int32_t a, std::int32_t b) {
  const auto distance = [target](std::int32_t value) {
    return std::abs(std::int64_t{value} - target);
  };
  if (distance(b) < distance(a)) return b;
  return a;
}

std::int32_t MatchAFToO2Limitations(std::int32_t value, const ConversionTable& O2) {
  return TableLookup(value, O2, /*interpolate=*/false, /*reverse=*/true);
}

double LinearInterpolate(double x1, double x2, double x, double y1, double y2, bool clamp) {
  double t = 0;
  if (x2 > x1) t = (x - x1) / (x2 - x1);
  if (clamp && t > 1) t = 1;
  return y1 + (y2 - y1) * t;
}

}  // namespace tarnview
