#include "universal/FormedStart.h"

#include <algorithm>

#include "base/Text.h"
#include "universal/ChannelBlocks.h"
#include "universal/DefinitionFaults.h"
#include "universal/HeaderMap.h"
#include "universal/ShapeText.h"
#include "universal/TextEncoding.h"

namespace tarnview {
namespace {

constexpr int kMostLinesBeforeTitles = 5000;

bool IsUtf8(const clsDataLog& definition) {
  return EncodingOfName(definition.strEncoding) == TextEncoding::Utf8;
}

/// The titles of a line. Where they are more than the fields of a line of data, brackets are taken
/// to hold delimiters.
std::vector<std::string> TitlesOfLine(std::string_view line, std::size_t fieldsOfData,
                                      const clsDataLog& definition) {
  std::string decoded(line);
  if (IsUtf8(definition)) decoded = PlainBytes(line, TextEncoding::Utf8);
  std::string_view text = decoded;
  text.remove_prefix(TitleMarkOf(text).size());
  const auto fields = SplitFields(text, definition.lngDelimiterAsciiCharacter);
  const char delimiter = static_cast<char>(definition.lngDelimiterAsciiCharacter);
  std::vector<std::string> titles(fields.begin(), fields.end());
  if (auto joined = JoinInBrackets(fields, delimiter);
      fields.size() > fieldsOfData && joined.size() >= fieldsOfData)
    titles = std::move(joined);
  for (std::string& title : titles) {
    std::replace(title.begin(), title.end(), kQuotedDelimiter, delimiter);
    title = TrimControlCharacters(title);
  }
  return titles;
}

/// The line begins with the titles that the definition wants in front.
bool StartsWithTitles(std::string_view line, const clsDataLog& definition) {
  const auto wanted =
      Split(definition.strTitlesStart, static_cast<char>(definition.lngDelimiterAsciiCharacter));
  const auto found = TitlesOfLine(line, wanted.size(), definition);
  if (found.size() < wanted.size()) return false;
  return std::equal(
      wanted.begin(), wanted.end(), found.begin(),
      [](const std::string& a, const std::string& b) { return SameIgnoringCase(Trim(a), b); });
}

/// Leaves `text` at the line of titles; false where no line starts as it is told.
bool FindTitles(PlainLog& text, const clsDataLog& definition) {
  for (int lines = 0; lines < kMostLinesBeforeTitles && !text.AtEnd(); ++lines) {
    if (StartsWithTitles(text.Line(), definition)) return true;
    text.Skip(1);
  }
  return false;
}

std::size_t FieldsOfLine(const PlainLog& text, const clsDataLog& definition) {
  return SplitFields(text.Line(), definition.lngDelimiterAsciiCharacter).size();
}

/// The preamble's channels behind a clock. All lines count as data: those without a clock's time
/// are no samples.
LogStart StartOfChannels(const PlainLog& text) {
  LogStart start;
  const auto head = LinesOf(text.Block().substr(0, ShapeText::kHead));
  start.titles.emplace_back("Time");
  for (const ChannelBlock& channel : ReadChannelBlocks(head, "CHANNEL"))
    start.titles.push_back(channel.name);
  return start;
}

LogStart StartWithoutTitles(PlainLog& text, const clsDataLog& definition, const std::string& path) {
  if (!text.Skip(definition.lngDataLinesBefore))
    throw DefinitionFault(Message::FileNotLoaded, path);
  LogStart start;
  start.titles.resize(FieldsOfLine(text, definition));
  return start;
}

LogStart StartAtTitles(PlainLog& text, const clsDataLog& definition, const std::string& path) {
  if (definition.strTitlesStart.empty() || !FindTitles(text, definition)) {
    text.Restart();
    if (!text.Skip(definition.lngColumnHeadersLinesBefore) || text.AtEnd())
      throw DefinitionFault(Message::HeaderIncomplete, path);
  }
  LogStart start;
  start.titleLine = text.Line();
  const long rows = definition.lngTitleRows == 2 ? 2 : 1;
  text.Skip(rows - 1);
  const std::string lastRow(text.Line());
  const long toData =
      std::max(definition.lngDataLinesBefore - definition.lngColumnHeadersLinesBefore, 1);
  if (!text.Skip(std::max(toData - rows + 1, 1L)))
    throw DefinitionFault(Message::FileNotLoaded, path);
  const std::size_t fields = FieldsOfLine(text, definition);
  start.titles = TitlesOfLine(start.titleLine, fields, definition);
  if (rows > 1) start.titles = JoinRows(start.titles, TitlesOfLine(lastRow, fields, definition));
  return start;
}

}  // namespace

LogStart FindFormedStart(PlainLog& text, const clsDataLog& definition, const std::string& path) {
  LogStart start;
  if (SameIgnoringCase(definition.strTitlesFrom, "CHANNELS"))
    start = StartOfChannels(text);
  else if (SameIgnoringCase(definition.strTitlesFrom, "NONE"))
    start = StartWithoutTitles(text, definition, path);
  else
    start = StartAtTitles(text, definition, path);
  for (std::size_t at = 0; at < start.titles.size(); ++at)
    if (start.titles[at].empty()) start.titles[at] = "Column " + std::to_string(at + 1);
  return start;
}

std::vector<std::string> JoinInBrackets(const std::vector<std::string_view>& fields,
                                        char delimiter) {
  std::vector<std::string> joined;
  int open = 0;
  for (const std::string_view field : fields) {
    if (open > 0)
      joined.back() += delimiter + std::string(Trim(field));
    else
      joined.emplace_back(field);
    for (const char c : field) open += (c == '(') - (c == ')');
    open = std::max(open, 0);
  }
  return joined;
}

std::vector<std::string> JoinRows(std::vector<std::string> above,
                                  const std::vector<std::string>& below) {
  above.resize(std::max(above.size(), below.size()));
  for (std::size_t at = 0; at < below.size(); ++at)
    above[at] = Trim(std::string(Trim(above[at])) + " " + below[at]);
  return above;
}

std::string_view TitleMarkOf(std::string_view line) {
  const auto end = line.find_first_not_of("#%*>!/ ");
  if (end == std::string_view::npos) return std::string_view();
  return line.substr(0, end);
}

}  // namespace tarnview
