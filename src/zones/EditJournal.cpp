#include "zones/EditJournal.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <vector>

#include "base/Text.h"
#include "model/IniKeys.h"
#include "zones/AutoTune.h"
#include "zones/ChipIdentity.h"
#include "zones/ZoneFlags.h"

namespace tarnview {
namespace {

constexpr std::string_view kHeading = "Tarnview Zone Edits 1", kEnd = "End";
constexpr std::size_t kMostSteps = 200;
constexpr std::pair<char, char> kEscapes[] = {{'\\', '\\'}, {'\t', 't'}, {'\r', 'r'}, {'\n', 'n'}};

using Facts = std::vector<std::string>;

std::string Escaped(std::string_view text) {
  std::string out;
  for (const char c : text) {
    const auto* row = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                   [&](const auto& pair) { return pair.first == c; });
    if (row == std::end(kEscapes))
      out += c;
    else
      out += {'\\', row->second};
  }
  return out;
}

std::string Unescaped(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == '\\' && i + 1 < text.size();
    if (escape) ++i;
    const auto* row = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                   [&](const auto& pair) { return pair.second == text[i]; });
    if (escape && row != std::end(kEscapes))
      out += row->first;
    else
      out += text[i];
  }
  return out;
}

/// False, and no change, where the text is no number or out of bounds.
bool TakeNumber(const std::string& text, int low, int high, int& value) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < low || number > high)
    return false;
  value = number;
  return true;
}

template <class List>
bool TakeWord(const std::string& text, const List& words, std::string& value) {
  if (std::find(std::begin(words), std::end(words), text) == std::end(words)) return false;
  value = text;
  return true;
}

/// No number of a sheet is farther from 0.
constexpr int kFarthest = 10'000'000;
const Date kLastDate = MakeDate(9999, 12, 31);

Facts FactsOf(const ZoneSheet& sheet) {
  Facts facts;
  for (const int shown : sheet.shown) facts.push_back(std::to_string(shown));
  for (const bool tick : sheet.ticks) facts.push_back(FlagText(tick, IniFlagForm::Number));
  facts.insert(facts.end(), {std::string(EngineSizeText(sheet.chip.dblEngineSize)),
                             std::to_string(sheet.chip.datChipDate),
                             std::to_string(sheet.intAtmosphericPressure), sheet.strNotes,
                             sheet.MAPID, sheet.autoTuneType, sheet.O2Sensor,
                             FlagText(sheet.boostTargets, IniFlagForm::Number)});
  return facts;
}

/// Chip version and layout stay those of the sheet.
bool TakeFacts(const Facts& facts, ZoneSheet& sheet) {
  static constexpr std::string_view kTypes[] = {"", "Off", "Lambda", "L3", "L3+L4"};
  static constexpr std::string_view kSensors[] = {"NB", "WB", "NB+WB"};
  auto next = facts.begin();
  bool good = true;
  for (int& shown : sheet.shown) good &= TakeNumber(*next++, -kFarthest, kFarthest, shown);
  for (bool& tick : sheet.ticks) tick = *next++ == "1";
  sheet.chip.dblEngineSize = EngineSizeIn(*next++);
  good &= TakeNumber(*next++, 1, kLastDate, sheet.chip.datChipDate);
  good &= TakeNumber(*next++, std::numeric_limits<std::int16_t>::min(),
                     std::numeric_limits<std::int16_t>::max(), sheet.intAtmosphericPressure);
  sheet.strNotes = *next++;
  good &= TakeWord(*next++, MAPIDs(), sheet.MAPID);
  good &= TakeWord(*next++, kTypes, sheet.autoTuneType);
  good &= TakeWord(*next++, kSensors, sheet.O2Sensor);
  sheet.boostTargets = *next++ == "1";
  return good;
}

/// "name", and "index=value" for each fact that the step changed.
std::string StepLine(const EditHistory::Step& step, const Facts& before, const Facts& after) {
  std::string line = Escaped(step.name);
  for (std::size_t i = 0; i < after.size(); ++i)
    if (after[i] != before[i]) line += "\t" + std::to_string(i) + "=" + Escaped(after[i]);
  return line;
}

bool TakeStep(std::string_view line, EditHistory& history) {
  const std::vector<std::string> words = Split(line, '\t');
  if (words.empty()) return false;
  Facts facts = FactsOf(history.Now());
  for (std::size_t i = 1; i < words.size(); ++i) {
    const auto equals = words[i].find('=');
    int index = 0;
    if (equals == std::string::npos ||
        !TakeNumber(words[i].substr(0, equals), 0, static_cast<int>(facts.size()) - 1, index))
      return false;
    facts[static_cast<std::size_t>(index)] =
        Unescaped(std::string_view(words[i]).substr(equals + 1));
  }
  ZoneSheet after = history.Now();
  if (!TakeFacts(facts, after)) return false;
  history.Do(Unescaped(words[0]), std::move(after));
  return true;
}

std::string ZonesText(const ZoneSettings& zones) {
  std::vector<std::string> numbers;
  for (const auto zone : zones) numbers.push_back(std::to_string(zone));
  return Join(numbers, " ");
}

bool TakeZones(std::string_view line, ZoneSettings& zones) {
  const std::vector<std::string> words = Split(line, ' ');
  if (words.size() != zones.size()) return false;
  bool good = true;
  for (std::size_t zone = 0; zone < zones.size(); ++zone) {
    int value = 0;
    good &= TakeNumber(words[zone], std::numeric_limits<std::int16_t>::min(),
                       std::numeric_limits<std::int16_t>::max(), value);
    zones[zone] = static_cast<std::int16_t>(value);
  }
  return good;
}

std::string ChipText(const ZoneMap& map) {
  return Join(
      {std::string(EngineSizeText(map.chip.dblEngineSize)), std::to_string(map.chip.datChipDate),
       std::to_string(map.chip.intChipVersion), std::to_string(map.intAtmosphericPressure)},
      " ");
}

bool TakeChip(std::string_view line, ZoneMap& map) {
  const std::vector<std::string> words = Split(line, ' ');
  if (words.size() != 4) return false;
  map.chip.dblEngineSize = EngineSizeIn(words[0]);
  return TakeNumber(words[1], 1, kLastDate, map.chip.datChipDate) &&
         TakeNumber(words[2], 1, 3, map.chip.intChipVersion) &&
         TakeNumber(words[3], std::numeric_limits<std::int16_t>::min(),
                    std::numeric_limits<std::int16_t>::max(), map.intAtmosphericPressure);
}

}  // namespace

std::string JournalText(const EditJournal& journal) {
  const EditHistory& history = journal.history;
  std::vector<std::string> lines{std::string(kHeading),
                                 Escaped(journal.file),
                                 std::to_string(journal.fileType),
                                 ChipText(journal.source),
                                 Escaped(journal.source.strNotes),
                                 ZonesText(journal.source.zones)};
  Facts before = FactsOf(history.Opened());
  std::size_t first = 0;
  if (history.Done() > kMostSteps) first = history.Done() - kMostSteps;
  for (std::size_t step = first; step < history.Done(); ++step) {
    Facts after = FactsOf(history.Steps()[step].after);
    lines.push_back(StepLine(history.Steps()[step], before, after));
    before = std::move(after);
  }
  lines.emplace_back(kEnd);
  return Join(lines, "\n") + "\n";
}

std::optional<EditJournal> ReadJournal(std::string_view bytes) {
  std::vector<std::string_view> lines;
  for (std::string_view line; TakeLine(bytes, line);) lines.push_back(line);
  constexpr std::size_t kHead = 6;
  if (lines.size() <= kHead || lines[0] != kHeading || lines.back() != kEnd) return std::nullopt;
  ZoneMap source;
  int fileType = 0;
  source.strNotes = Unescaped(lines[4]);
  if (!TakeNumber(std::string(lines[2]), 1, 8, fileType) || !TakeChip(lines[3], source) ||
      !TakeZones(lines[5], source.zones))
    return std::nullopt;
  EditJournal journal(Unescaped(lines[1]), fileType, source);
  for (std::size_t i = kHead; i + 1 < lines.size(); ++i)
    if (!TakeStep(lines[i], journal.history)) return std::nullopt;
  return journal;
}

}  // namespace tarnview
