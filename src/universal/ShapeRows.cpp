#include "universal/ShapeRows.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "universal/FormedStart.h"
#include "universal/Units.h"

namespace tarnview {
namespace {

using Fields = std::vector<std::string_view>;

constexpr std::size_t kMostLinesJudged = 2000;

/// Fields of each kind.
std::array<int, 5> CountKinds(const Fields& fields, char decimalSign) {
  std::array<int, 5> counts{};
  for (const std::string_view field : fields)
    ++counts[static_cast<std::size_t>(KindOfField(field, decimalSign))];
  return counts;
}

int Of(const std::array<int, 5>& counts, FieldKind kind) {
  return counts[static_cast<std::size_t>(kind)];
}

std::vector<std::string> TitlesOf(std::string_view line, const FieldFormGuess& guess) {
  FieldForm form = guess.form;
  form.quoted = true;
  line.remove_prefix(TitleMarkOf(line).size());
  const Fields fields = SplitShapeLine(line, form);
  if (static_cast<int>(fields.size()) <= guess.fields) return {fields.begin(), fields.end()};
  const auto joined = JoinInBrackets(fields, form.delimiter);
  if (static_cast<int>(joined.size()) >= guess.fields) return joined;
  return std::vector<std::string>(fields.begin(), fields.end());
}

/// A row that may name columns: about as many texts as there are fields, hardly a number among
/// them.
bool MayBeTitles(std::string_view line, const FieldFormGuess& guess) {
  if (line.empty()) return false;
  const auto titles = TitlesOf(line, guess);
  const int usual = guess.fields, found = static_cast<int>(titles.size());
  if (found < 2 || found + 2 < usual || (found < usual && usual < 4 && found + 1 < usual))
    return false;
  const auto counts = CountKinds({titles.begin(), titles.end()}, guess.form.decimalSign);
  const int texts = Of(counts, FieldKind::Text);
  return texts >= 1 && texts >= 2 * (Of(counts, FieldKind::Number) + Of(counts, FieldKind::Time));
}

bool IsUnitsRow(const std::vector<std::string>& fields) {
  int known = 0, texts = 0;
  for (const std::string& field : fields) {
    if (field.empty()) continue;
    ++texts;
    known += IsUnit(field);
  }
  return texts > 0 && 2 * known >= texts;
}

bool AnyLetter(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<signed char>(c) < 0;
  });
}

/// The first line of data: of it and the four behind it at least three are data, or all where fewer
/// follow.
int FirstDataLine(const std::vector<std::string_view>& lines, const FieldFormGuess& guess) {
  for (std::size_t at = 0; at < std::min(lines.size(), kMostLinesJudged); ++at) {
    if (!IsDataLine(lines[at], guess)) continue;
    std::size_t data = 0, looked = 0;
    for (std::size_t next = at; next < std::min(at + 5, lines.size()); ++next, ++looked)
      data += IsDataLine(lines[next], guess);
    if (data >= std::min<std::size_t>(3, looked)) return static_cast<int>(at);
  }
  return -1;
}

/// The lines above the data that are of as many fields, from the lowest to the highest; blank lines
/// and short marks such as "[Channel Data]" may stand between them and the data.
std::vector<int> RowsAbove(const std::vector<std::string_view>& lines, int dataLine,
                           const FieldFormGuess& guess) {
  std::vector<int> rows;
  for (int at = dataLine - 1; at >= 0 && at >= dataLine - 12; --at) {
    const std::string_view line = lines[static_cast<std::size_t>(at)];
    const int fields = static_cast<int>(SplitShapeLine(line, guess.form).size());
    if (MayBeTitles(line, guess) ||
        (fields >= guess.fields - 1 && fields > 1 && !IsDataLine(line, guess)))
      rows.push_back(at);
    else if (!rows.empty())
      break;
  }
  return rows;
}

int CountFilled(const std::vector<std::string>& fields) {
  return static_cast<int>(std::count_if(fields.begin(), fields.end(),
                                        [](const auto& field) { return !field.empty(); }));
}

/// A row above another one is the titles if it names nearly as many columns and no fewer known
/// ones, where a row of groups names fewer; above units any is.
bool NamesMore(const std::vector<std::string>& above, const std::vector<std::string>& below,
               const CountKnown& known) {
  constexpr double kNearly = 0.85;
  if (IsUnitsRow(above)) return false;
  if (IsUnitsRow(below)) return true;
  return CountFilled(above) >= kNearly * CountFilled(below) && known(above) >= known(below);
}

/// Of those rows the topmost that may be titles, unless a line of comment.
int TitleLineOf(const std::vector<std::string_view>& lines, const std::vector<int>& rows,
                const FieldFormGuess& guess, const CountKnown& known) {
  int found = -1;
  for (const int row : rows) {
    const std::string_view line = lines[static_cast<std::size_t>(row)];
    if (!MayBeTitles(line, guess) || (found >= 0 && line.starts_with('#'))) continue;
    if (found < 0 || NamesMore(TitlesOf(line, guess),
                               TitlesOf(lines[static_cast<std::size_t>(found)], guess), known))
      found = row;
  }
  return found;
}

bool Repeats(std::vector<std::string> titles) {
  std::erase(titles, "");
  std::sort(titles.begin(), titles.end());
  return std::adjacent_find(titles.begin(), titles.end()) != titles.end();
}

/// "Engine" and "Speed": together two rows name more columns that are known, or tell columns of
/// like names apart. A row of units is no part of titles, nor one of strokes.
bool NameTogether(const std::vector<std::string>& above, const std::vector<std::string>& below,
                  const CountKnown& known) {
  const auto names = [](const std::vector<std::string>& row) {
    return std::any_of(row.begin(), row.end(), AnyLetter) && !IsUnitsRow(row);
  };
  if (!names(above) || !names(below)) return false;
  const auto joined = JoinRows(above, below);
  const int alone = std::max(known(above), known(below)), together = known(joined);
  return together > alone || (together == alone && Repeats(below) && !Repeats(joined));
}

/// The first of two such rows; -1 for none.
int FirstOfTwoRows(const std::vector<std::string_view>& lines, const std::vector<int>& rows,
                   const FieldFormGuess& guess, const CountKnown& known) {
  for (std::size_t at = 0; at + 1 < rows.size(); ++at) {
    const std::string_view below = lines[static_cast<std::size_t>(rows[at])],
                           above = lines[static_cast<std::size_t>(rows[at + 1])];
    if (rows[at + 1] == rows[at] - 1 && MayBeTitles(above, guess) && MayBeTitles(below, guess) &&
        NameTogether(TitlesOf(above, guess), TitlesOf(below, guess), known))
      return rows[at + 1];
  }
  return -1;
}

/// The titles' lines, and that of units between them and the data.
TitleLines FindTitleLines(const std::vector<std::string_view>& lines, int dataLine,
                          const FieldFormGuess& guess, const CountKnown& known) {
  const auto rows = RowsAbove(lines, dataLine, guess);
  TitleLines found{FirstOfTwoRows(lines, rows, guess, known), 2, -1};
  if (found.titles < 0) found = {TitleLineOf(lines, rows, guess, known), 1, -1};
  if (found.titles < 0) return found;
  for (int at = found.titles + found.rows; at < dataLine && found.units < 0; ++at) {
    const auto fields = TitlesOf(lines[static_cast<std::size_t>(at)], guess);
    if (fields.size() > 1 && IsUnitsRow(fields)) found.units = at;
  }
  return found;
}

/// What lines among the data begin with that are none and have one beginning in common: "#", "//".
std::string CommentPrefixOf(const std::vector<std::string_view>& lines, std::size_t from) {
  constexpr std::string_view kPrefixes[] = {"#", "//", "%", "*"};
  for (const std::string_view prefix : kPrefixes)
    if (std::any_of(lines.begin() + static_cast<std::ptrdiff_t>(from), lines.end(),
                    [&](std::string_view line) { return line.starts_with(prefix); }))
      return std::string(prefix);
  return "";
}

double DataShare(const std::vector<std::string_view>& lines, std::size_t from,
                 const FieldFormGuess& guess) {
  int data = 0, all = 0;
  for (std::size_t at = from; at < std::min(lines.size(), from + kMostLinesJudged); ++at) {
    if (lines[at].empty()) continue;
    ++all;
    data += IsDataLine(lines[at], guess);
  }
  if (all == 0) return 0;
  return static_cast<double>(data) / all;
}

}  // namespace

void SetTitleLines(ShapeRows& rows, const std::vector<std::string_view>& lines,
                   const FieldFormGuess& guess, const TitleLines& settled) {
  const int count = static_cast<int>(lines.size());
  const auto lineAt = [&](int at) { return lines[static_cast<std::size_t>(at)]; };
  rows.titleLine = rows.unitsLine = -1;
  if (settled.titles < count) rows.titleLine = settled.titles;
  if (settled.units < count && rows.titleLine >= 0) rows.unitsLine = settled.units;
  rows.titleRows = 1;
  rows.titles.clear();
  rows.units.clear();
  if (rows.titleLine < 0) return;
  rows.titles = rows.firstRow = TitlesOf(lineAt(rows.titleLine), guess);
  rows.quotedTitles = lineAt(rows.titleLine).find('"') != std::string_view::npos;
  if (const int next = rows.titleLine + 1; settled.rows > 1 && next < count) {
    rows.titleRows = 2;
    rows.titles = JoinRows(rows.firstRow, TitlesOf(lineAt(next), guess));
    rows.quotedTitles = rows.quotedTitles || lineAt(next).find('"') != std::string_view::npos;
  }
  if (rows.unitsLine < 0) return;
  rows.units = TitlesOf(lineAt(rows.unitsLine), guess);
  rows.units.resize(rows.titles.size());
}

bool IsDataLine(std::string_view line, const FieldFormGuess& guess) {
  const Fields fields = SplitShapeLine(line, guess.form);
  const int found = static_cast<int>(fields.size());
  if (found < 2 || found * 3 < guess.fields * 2 || found > guess.fields + 2) return false;
  int numbers = 0, texts = 0, looked = 0;
  for (std::size_t at = 0; at < std::min(fields.size(), guess.numbers.size()); ++at) {
    if (!guess.numbers[at]) continue;
    const FieldKind kind = KindOfField(fields[at], guess.form.decimalSign);
    numbers += kind == FieldKind::Number || kind == FieldKind::Time;
    texts += kind == FieldKind::Text;
    if (++looked == 1 && texts > 0) return false;
  }
  return numbers > 0 && numbers >= texts;
}

ShapeRows FindRows(const std::vector<std::string_view>& lines, const FieldFormGuess& guess,
                   const CountKnown& known) {
  ShapeRows rows;
  rows.dataLine = FirstDataLine(lines, guess);
  if (rows.dataLine < 0) return rows;
  const auto from = static_cast<std::size_t>(rows.dataLine);
  SetTitleLines(rows, lines, guess, FindTitleLines(lines, rows.dataLine, guess, known));
  rows.commentPrefix = CommentPrefixOf(lines, from);
  rows.dataShare = DataShare(lines, from, guess);
  if (rows.titleLine >= 0 && !std::any_of(rows.titles.begin(), rows.titles.end(), AnyLetter))
    rows.titleLine = -1;
  return rows;
}

}  // namespace tarnview
