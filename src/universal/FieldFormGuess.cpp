#include "universal/FieldFormGuess.h"

#include <algorithm>
#include <map>

namespace tarnview {
namespace {

struct Delimiter {
  char sign;
  std::string_view name;
  double trust;  ///< blanks stand in any text
};

constexpr Delimiter kDelimiters[] = {
    {'\t', "tab", 1}, {';', "semicolon", 1}, {',', "comma", 1},
    {'|', "bar", 1},  {' ', "blanks", 0.7},
};

constexpr std::size_t kMostLines = 300;

/// The last quarter of the lines, where titles and notes are behind; four at least, so that a short
/// log counts.
std::vector<std::string_view> LinesToJudge(const std::vector<std::string_view>& lines) {
  std::vector<std::string_view> judged;
  const std::size_t count =
      std::clamp<std::size_t>(lines.size() / 4, std::min<std::size_t>(4, lines.size()), kMostLines);
  for (std::size_t at = lines.size() - count; at < lines.size(); ++at)
    if (!lines[at].empty()) judged.push_back(lines[at]);
  return judged;
}

bool AnyQuoted(const std::vector<std::string_view>& lines, char delimiter) {
  return std::any_of(lines.begin(), lines.end(), [&](std::string_view line) {
    const auto quote = line.find('"');
    if (quote == std::string_view::npos || line.find('"', quote + 1) == std::string_view::npos)
      return false;
    const auto before = line.find_last_not_of(' ', quote == 0 ? 0 : quote - 1);
    return quote == 0 || before == std::string_view::npos || line[before] == delimiter;
  });
}

/// Which sign the numbers of the fields have for the point. Where the comma cuts fields it is none,
/// quoted ones aside.
char DecimalSignOf(const std::vector<std::string_view>& lines, FieldForm form) {
  int commas = 0, points = 0, either = 0;
  for (const std::string_view line : lines) {
    for (const std::string_view field : SplitShapeLine(line, form)) {
      if (field.find(',') == std::string_view::npos) {
        points += field.find('.') != std::string_view::npos && ReadShapeNumber(field, '.');
        continue;
      }
      const bool grouped = ReadShapeNumber(field, '.').has_value();  // "2,000" may be both
      commas += !grouped && ReadShapeNumber(field, ',');
      const bool pointed = grouped && field.find('.') != std::string_view::npos;
      points += pointed;
      either += grouped && !pointed;
    }
  }
  if (points == 0 && either > 0 && form.delimiter != ',') return ',';
  if (commas > points) return ',';
  return '.';
}

/// The number of fields that most lines have, and how many lines those are.
std::pair<int, int> UsualFields(const std::vector<std::string_view>& lines, const FieldForm& form) {
  std::map<int, int> counts;
  for (const std::string_view line : lines)
    ++counts[static_cast<int>(SplitShapeLine(line, form).size())];
  const auto most =
      std::max_element(counts.begin(), counts.end(),
                       [](const auto& a, const auto& b) { return a.second < b.second; });
  if (most == counts.end()) return std::pair<int, int>(0, 0);
  return std::pair<int, int>(*most);
}

double WorthOf(FieldKind kind) {
  constexpr double kWorths[] = {0.6, 0.9, 1, 1, 0.2};  // Empty, NoValue, Number, Time, Text
  return kWorths[static_cast<int>(kind)];
}

double NumericShare(const std::vector<std::string_view>& lines, const FieldForm& form, int usual) {
  double worth = 0;
  int fields = 0;
  for (const std::string_view line : lines) {
    const auto parts = SplitShapeLine(line, form);
    if (static_cast<int>(parts.size()) != usual) continue;
    for (const std::string_view part : parts) worth += WorthOf(KindOfField(part, form.decimalSign));
    fields += usual;
  }
  if (fields == 0) return 0;
  return worth / fields;
}

FieldFormGuess Judge(const std::vector<std::string_view>& lines, const Delimiter& delimiter,
                     std::optional<char> decimalSign) {
  FieldFormGuess guess;
  guess.form = {delimiter.sign, AnyQuoted(lines, delimiter.sign), '.'};
  const auto [usual, often] = UsualFields(lines, guess.form);
  guess.fields = usual;
  if (usual < 2) return guess;
  if (decimalSign)
    guess.form.decimalSign = *decimalSign;
  else
    guess.form.decimalSign = DecimalSignOf(lines, guess.form);
  guess.regularity = static_cast<double>(often) / static_cast<double>(lines.size());
  guess.numeric = NumericShare(lines, guess.form, usual);
  guess.score = static_cast<int>(100 * delimiter.trust * guess.regularity * guess.numeric *
                                 (1 - 0.2 / usual));
  return guess;
}

/// The fields whose texts are, for the most part, numbers or times.
std::vector<bool> FieldsOfNumbers(const std::vector<std::string_view>& lines,
                                  const FieldFormGuess& guess) {
  std::vector<int> balance(static_cast<std::size_t>(guess.fields));
  for (const std::string_view line : lines) {
    const auto parts = SplitShapeLine(line, guess.form);
    if (parts.size() != balance.size()) continue;
    for (std::size_t at = 0; at < parts.size(); ++at) {
      const FieldKind kind = KindOfField(parts[at], guess.form.decimalSign);
      balance[at] +=
          (kind == FieldKind::Number || kind == FieldKind::Time) - (kind == FieldKind::Text);
    }
  }
  std::vector<bool> numbers;
  for (const int share : balance) numbers.push_back(share > 0);
  return numbers;
}

}  // namespace

FieldFormGuess GuessFieldForm(const std::vector<std::string_view>& lines, std::optional<char> sign,
                              std::optional<char> decimalSign) {
  const auto judged = LinesToJudge(lines);
  FieldFormGuess best;
  if (judged.empty()) return best;
  for (const Delimiter& delimiter : kDelimiters) {
    if (sign && *sign != delimiter.sign) continue;
    const FieldFormGuess guess = Judge(judged, delimiter, decimalSign);
    if (guess.score > best.score) best = guess;
  }
  best.numbers = FieldsOfNumbers(judged, best);
  return best;
}

std::string_view DelimiterName(char delimiter) {
  for (const Delimiter& row : kDelimiters)
    if (row.sign == delimiter) return row.name;
  return "";
}

}  // namespace tarnview
