#include "universal/LogShape.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "base/Text.h"
#include "universal/ChannelBlocks.h"
#include "universal/Units.h"

namespace tarnview {
namespace {

constexpr std::size_t kMostLinesRead = 4000, kFewestLines = 3;
/// Lines of very many fields: fewer of them are read, so that a look stays short.
constexpr std::size_t kMostFieldsRead = 24000;
constexpr std::size_t kMostColumns = 2000;

class Reader {
 public:
  Reader(const ShapeText& text, const TitleDictionary& dictionary, const clsLogDataItems& catalogue,
         const ShapeChoices& choices)
      : text_(text), dictionary_(dictionary), catalogue_(catalogue), choices_(choices) {}

  LogShape Read() {
    shape_.encoding = text_.encoding.encoding;
    Tell("Text: " + std::string(EncodingName(shape_.encoding)) + ", as " + text_.encoding.why);
    if (!FindForm() || !FindLines()) return std::move(shape_);
    NameColumns();
    GatherTable();
    for (ShapeColumn& column : shape_.columns)
      DescribeColumn(column, table_, shape_.form.decimalSign);
    DropEmptyColumns();
    ScaleChannels();
    FindTime();
    shape_.items = ChooseItems(shape_.columns, shape_.time, dictionary_, catalogue_);
    shape_.score = Score();
    return std::move(shape_);
  }

 private:
  void Tell(std::string sentence) { shape_.why.push_back(std::move(sentence)); }

  bool FindForm() {
    std::vector<std::string_view> lines = text_.head;
    lines.insert(lines.end(), text_.tail.begin(), text_.tail.end());
    guess_ = GuessFieldForm(lines, choices_.delimiter, choices_.decimalSign);
    shape_.form = guess_.form;
    if (guess_.fields < 2 || guess_.score == 0) {
      Tell("Fields: no sign cuts the lines into fields of numbers");
      return false;
    }
    Tell("Fields: " + std::string(DelimiterName(shape_.form.delimiter)) + ", " +
         std::to_string(guess_.fields) + " in most lines; decimal sign \"" +
         shape_.form.decimalSign + "\"");
    return true;
  }

  bool FindLines() {
    shape_.rows = FindRows(text_.head, guess_,
                           [this](const auto& titles) { return CountKnownTitles(titles); });
    ShapeRows& rows = shape_.rows;
    if (choices_.dataLine) rows.dataLine = *choices_.dataLine;
    SettleTitleLines(rows);
    if (rows.dataLine < 0 || rows.dataLine >= static_cast<int>(text_.head.size())) {
      Tell("Lines: no rows of numbers");
      return false;
    }
    Tell("Lines: " + TitleLinesText(rows) +
         TextIf(rows.unitsLine >= 0, ", units in line " + std::to_string(rows.unitsLine + 1)) +
         ", data from line " + std::to_string(rows.dataLine + 1));
    return true;
  }

  void SettleTitleLines(ShapeRows& rows) const {
    if (!choices_.titleLine && !choices_.unitsLine && !choices_.titleRows) return;
    TitleLines lines{choices_.titleLine.value_or(rows.titleLine), rows.titleRows,
                     choices_.unitsLine.value_or(rows.unitsLine)};
    if (lines.titles != rows.titleLine || lines.units == lines.titles + 1) lines.rows = 1;
    lines.rows = choices_.titleRows.value_or(lines.rows);
    SetTitleLines(rows, text_.head, guess_, lines);
  }

  static std::string TitleLinesText(const ShapeRows& rows) {
    if (rows.titleLine < 0) return "no titles";
    const std::string first = std::to_string(rows.titleLine + 1);
    if (rows.titleRows == 1) return "titles in line " + first;
    return "titles in lines " + first + " and " + std::to_string(rows.titleLine + 2);
  }

  /// Among the first ones.
  int CountKnownTitles(const std::vector<std::string>& titles) const {
    constexpr std::size_t kLookedAt = 40;
    return static_cast<int>(std::count_if(
        titles.begin(),
        titles.begin() + static_cast<std::ptrdiff_t>(std::min(titles.size(), kLookedAt)),
        [this](std::string title) {
          TakeUnit(title);
          return dictionary_.Find(title).score > 0;
        }));
  }

  void NameColumns() {
    std::vector<std::string> titles = shape_.rows.titles;
    if (shape_.rows.titleLine < 0) {
      titles = ChannelTitles();
      shape_.channelTitles = !titles.empty();
      titles.resize(static_cast<std::size_t>(guess_.fields));
    }
    std::map<std::string, int> seen;
    for (std::size_t at = 0; at < std::min(titles.size(), kMostColumns); ++at) {
      ShapeColumn column;
      column.field = static_cast<int>(at);
      column.header = column.title = titles[at];
      if (!column.header.empty()) column.occurrence = ++seen[Upper(column.header)];
      column.unit = TakeUnit(column.title);
      if (at < shape_.rows.units.size() && !shape_.rows.units[at].empty())
        column.unit = shape_.rows.units[at];
      TakeUnitWord(column);
      if (column.title.empty()) column.title = "Column " + std::to_string(at + 1);
      shape_.columns.push_back(std::move(column));
    }
  }

  /// "Boost kPa", "ECT_C": the last word is the unit of what is known without it, but not with it.
  void TakeUnitWord(ShapeColumn& column) const {
    constexpr int kSure = 90;
    const auto sign = column.title.find_last_of(" _");
    if (!column.unit.empty() || sign == std::string::npos) return;
    const std::string rest = column.title.substr(0, sign), unit = column.title.substr(sign + 1);
    if (!IsUnit(unit) || dictionary_.Find(column.title).score >= kSure ||
        dictionary_.Find(rest).score < kSure)
      return;
    column.title = rest;
    column.unit = unit;
  }

  std::vector<std::string> ChannelTitles() {
    channels_ = ReadChannelBlocks(Preamble(), "CHANNEL");
    std::vector<std::string> titles;
    if (channels_.empty()) return titles;
    titles.emplace_back("Time");
    for (const ChannelBlock& channel : channels_) titles.push_back(channel.name);
    Tell("Titles: " + std::to_string(channels_.size()) + " channels of the preamble");
    return titles;
  }

  std::vector<std::string_view> Preamble() const {
    return {text_.head.begin(), text_.head.begin() + shape_.rows.dataLine};
  }

  void GatherTable() {
    const std::size_t most = std::clamp(kMostFieldsRead / static_cast<std::size_t>(guess_.fields),
                                        std::size_t{50}, kMostLinesRead);
    for (std::size_t at = static_cast<std::size_t>(shape_.rows.dataLine);
         at < text_.head.size() && table_.size() < most; ++at)
      AddLine(text_.head[at]);
    for (std::size_t at = text_.tail.size() - std::min(text_.tail.size(), most / 4);
         at < text_.tail.size(); ++at)
      AddLine(text_.tail[at]);
  }

  void AddLine(std::string_view line) {
    if (!IsDataLine(line, guess_)) return;
    table_.push_back(SplitShapeLine(line, shape_.form));
    for (const std::string_view field : table_.back())
      if (!field.empty() && std::string_view("-./?").find(field[0]) != field.npos)
        NoteNoValue(field);
  }

  void NoteNoValue(std::string_view field) {
    constexpr std::size_t kMost = 16;
    auto& texts = shape_.noValueTexts;
    const auto known = NoValueTexts();
    if (texts.size() < kMost && IsNoValue(field) && !ReadShapeNumber(field, '.') &&
        std::find(known.begin(), known.end(), field) == known.end() &&
        std::find(texts.begin(), texts.end(), field) == texts.end())
      texts.emplace_back(field);
  }

  /// Fields without a title that no line fills, such as those outside of bars at both ends; and a
  /// last one that no line fills and whose title tells of the log, not of a quantity.
  void DropEmptyColumns() {
    std::erase_if(shape_.columns, [](const ShapeColumn& column) {
      return column.header.empty() && column.unit.empty() && column.values == 0;
    });
    if (shape_.columns.size() < 3) return;
    const ShapeColumn& last = shape_.columns.back();
    const auto point = last.header.rfind('.');
    const bool file = point != std::string::npos && last.header.size() - point == 4 &&
                      IsLetters(last.header.substr(point + 1));
    const bool note = last.header.find(":[") != std::string::npos || file;
    if (last.values > 0 || !note) return;
    Tell("The last column, \"" + last.header + "\", holds no data");
    shape_.columns.pop_back();
  }

  static bool IsLetters(const std::string& text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); });
  }

  void FindTime() {
    TimeBase& time = shape_.time;
    time = FindTimeBase(shape_.columns, table_, shape_.form.decimalSign);
    if (choices_.timeColumn)
      time.column = std::min(*choices_.timeColumn, static_cast<int>(shape_.columns.size()) - 1);
    if (choices_.timeForm) time.form = *choices_.timeForm;
    if (time.column >= 0 && time.form == TimeForm::None) time.form = TimeForm::Seconds;
    if (time.column < 0) time = {-1, TimeForm::None, 0, 0, time.why};
    if (time.column >= 0)
      shape_.lineFrequency = 0;
    else
      shape_.lineFrequency =
          choices_.lineFrequency.value_or(RateOfPreamble(text_.head, shape_.rows.dataLine));
    Tell("Time: " + time.why);
    if (shape_.lineFrequency > 0) Tell("Time: the log tells its rate");
  }

  /// The whole numbers of channels are scaled by their types.
  void ScaleChannels() {
    for (std::size_t at = 0; at < channels_.size() && at + 1 < shape_.columns.size(); ++at)
      if (const ChannelScale* scale = ScaleOfChannel(channels_[at].type))
        Scale(shape_.columns[at + 1], *scale);
  }

  static void Scale(ShapeColumn& column, const ChannelScale& scale) {
    column.unit = scale.unit;
    column.scale = scale.factor;
    column.lowest *= scale.factor;
    column.highest *= scale.factor;
    column.median *= scale.factor;
    column.places += static_cast<int>(std::lround(-std::log10(scale.factor)));
  }

  int Score() const {
    if (table_.size() < kFewestLines) return 0;
    double titles = 0, time = 0;
    if (shape_.rows.titleLine >= 0 || shape_.channelTitles) titles = 1;
    if (shape_.HasClock()) time = shape_.time.score / 100.0;
    if (shape_.lineFrequency > 0) time = 0.8;
    double score = 35 * shape_.rows.dataShare + 20 * titles + 25 * time + 20 * guess_.numeric;
    score = std::min(score, 100.0);
    if (guess_.form.delimiter == ' ') score *= 0.9;
    return static_cast<int>(score);
  }

  const ShapeText& text_;
  const TitleDictionary& dictionary_;
  const clsLogDataItems& catalogue_;
  const ShapeChoices& choices_;
  FieldFormGuess guess_;
  ShapeTable table_;
  std::vector<ChannelBlock> channels_;
  LogShape shape_;
};

}  // namespace

LogShape ReadLogShape(std::string_view bytes, const TitleDictionary& dictionary,
                      const clsLogDataItems& catalogue, const ShapeChoices& choices) {
  const ShapeText text(bytes, choices.encoding);
  LogShape none;
  if (text.encoding.score == 0)
    none.why.push_back(text.encoding.why);
  else if (text.head.size() < kFewestLines)
    none.why.emplace_back("fewer than three lines");
  if (!none.why.empty()) return none;
  return Reader(text, dictionary, catalogue, choices).Read();
}

}  // namespace tarnview
