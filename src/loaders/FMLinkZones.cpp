#include "loaders/FMLinkZones.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "fields/FixedLine.h"
#include "zones/ChipIdentity.h"

namespace tarnview {
namespace {

constexpr std::string_view kATM = " ATM";
constexpr std::string_view kChanges = "Lambda/knock zone changes";
constexpr std::string_view kNoChanges = "No lambda/knock zone changes";
constexpr std::int16_t kUnknown = -1;
constexpr std::size_t kHeadingLength =
    68;  ///< a zone section's heading; only an " ATM" row may stand there
constexpr std::size_t kLastRowLength = 64;  ///< the row of zones 240 to 255, which old ECUs lack
constexpr int kSecondRow = 16, kFirstOfLastRow = 240;
constexpr int kCellsPerRow = 16;

/// The rows behind the " ATM" row, which holds zones 0 and upward.
struct ZoneRow {
  int linesToSkip;
  int firstZone;
  bool cells;  ///< in the changes section, read by position
};
constexpr ZoneRow kRows[] = {
    {2, 16, false},  //
    {1, 32, true},  {0, 48, true},  {0, 64, true},
    {0, 80, true},  {0, 96, true},  {0, 112, true},  // fuel
    {3, 128, true}, {0, 144, true}, {0, 160, true},
    {0, 176, true}, {0, 192, true}, {0, 208, true},  // ignition
    {2, 224, true},
};

[[noreturn]] void Fail(long number, const char* description) {
  throw RuntimeError(number, description);
}

std::int16_t ZoneValue(std::string_view text) {
  const double value = RoundHalfEven(StringToDouble(text));
  if (value < -32768 || value > 32767) Fail(6, "Overflow");
  return static_cast<std::int16_t>(value);
}

/// Calls `give(zone, value)` for each of the numbers of a row; "*" stands for -1.
template <class Give>
void SplitZoneLine(std::string_view line, int firstZone, Give&& give) {
  if (line.starts_with(kATM)) line.remove_prefix(kATM.size());
  std::string text;
  for (const char c : line) {
    if (c == '*')
      text += "-1";
    else
      text += c;
  }
  int zone = firstZone;
  for (std::size_t at = 0; (at = text.find_first_not_of(' ', at)) != std::string::npos;) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    if (zone >= static_cast<int>(ZoneSettings().size())) Fail(9, "Subscript out of range");
    give(static_cast<std::size_t>(zone++), ZoneValue(std::string_view(text).substr(at, end - at)));
    at = end;
  }
}

void ReadTokens(std::string_view line, int firstZone, ZoneSettings& zones) {
  SplitZoneLine(line, firstZone,
                [&](std::size_t zone, std::int16_t value) { zones[zone] = value; });
}

/// A change that is not given keeps the zone's own value.
void ReadChangeTokens(std::string_view line, int firstZone, const ZoneSettings& own,
                      ZoneSettings& changes) {
  SplitZoneLine(line, firstZone, [&](std::size_t zone, std::int16_t value) {
    changes[zone] = value == kUnknown ? own[zone] : value;
  });
}

/// 16 cells of 3 characters: " 123   *  45 ..."
void ReadChangeCells(std::string_view text, int firstZone, const ZoneSettings& own,
                     ZoneSettings& changes) {
  const FixedLine<2 + 4 * kCellsPerRow> line(text);
  for (int c = 0; c < kCellsPerRow; ++c) {
    const std::string_view cell = line.Text(4 * c + 2, 3);
    const auto zone = static_cast<std::size_t>(firstZone + c);
    changes[zone] = cell == "  *" ? own[zone] : ZoneValue(cell);
  }
}

/// A cell that is no number is 0.
void ReadCells(std::string_view text, int firstZone, ZoneSettings& zones) {
  const FixedLine<2 + 4 * kCellsPerRow> line(text);
  for (int c = 0; c < kCellsPerRow; ++c)
    zones[static_cast<std::size_t>(firstZone + c)] = ZoneValue(line.Text(4 * c + 2, 3));
}

std::string_view FindATMRow(TextLines& lines) {
  std::string_view line;
  do {
    line = lines.Next();
  } while (line.size() != kHeadingLength && !lines.AtEnd() && !line.starts_with(kATM));
  if (!line.starts_with(kATM)) Fail(5, "Zone settings not found");
  return line;
}

/// The layout of an ATM line by its length: where engine and date stand, and what the engine's
/// texts mean.
struct Engine {
  std::string_view text;
  double size;
  int chipVersion;
  int dateAt;
};
constexpr Engine kOldEngines[] = {{"1.8", 1.8, 2, 17}, {"MK-II", 1.6, 2, 19}, {"", 1.6, 1, 18}};
constexpr Engine kEngines[] = {
    {"1.8", 1.8, 2, 27}, {"OBD2", 1.8, 3, 27}, {"MK-2", 1.6, 2, 27}, {"", 1.6, 1, 27}};

struct ATMLayout {
  int engineAt;
  int dateLength;
  const Engine* engines;  ///< the last one fits any text
};
constexpr ATMLayout kOldLayout{13, 9, kOldEngines};
constexpr ATMLayout kLayout{23, 10, kEngines};
constexpr std::size_t kLayoutFrom = 30;

}  // namespace

void ReadZoneSection(TextLines& lines, ZoneSettings& zones, LoadProgress& progress) {
  const std::string_view first = FindATMRow(lines);
  progress.Stage("Loading zone settings");
  ReadTokens(first, 0, zones);
  for (const ZoneRow& row : kRows) {
    lines.Skip(row.linesToSkip);
    ReadTokens(lines.Next(), row.firstZone, zones);
  }
  if (!lines.AtEnd() && lines.Next().size() == kLastRowLength)
    ReadTokens(lines.Current(), kFirstOfLastRow, zones);
  else
    std::fill(zones.begin() + kFirstOfLastRow, zones.end(), std::int16_t{0});
  if (std::find(zones.begin(), zones.end(), kUnknown) != zones.end())
    Fail(5, "Zone setting not known");
}

void ReadBenchmarkSection(TextLines& lines, ZoneSettings& zones) {
  ReadTokens(FindATMRow(lines), 0, zones);
  for (const ZoneRow& row : kRows) {
    lines.Skip(row.linesToSkip);
    const bool cells = row.firstZone != kSecondRow;
    (cells ? ReadCells : ReadTokens)(lines.Next(), row.firstZone, zones);
  }
  if (!lines.AtEnd() && lines.Next().size() == kLastRowLength)
    ReadTokens(lines.Current(), kFirstOfLastRow, zones);
}

void ReadChangesSection(TextLines& lines, LoadedZones& zones, LoadProgress& progress) {
  zones.changes = zones.zones;
  std::string_view line = lines.Current();
  while (line != kChanges && line != kNoChanges) {
    if (line.starts_with(kATM)) ParseATMLine(line, zones);
    if (lines.AtEnd()) Fail(5, "Lambda/knock changes not found");
    line = lines.Next();
  }
  if (line == kNoChanges) return;

  progress.Stage("Loading lambda/knock changes");
  ReadChangeTokens(FindATMRow(lines), 0, zones.zones, zones.changes);
  for (const ZoneRow& row : kRows) {
    lines.Skip(row.linesToSkip);
    (row.cells ? ReadChangeCells : ReadChangeTokens)(lines.Next(), row.firstZone, zones.zones,
                                                     zones.changes);
  }
  if (!lines.AtEnd() && lines.Next().size() == kLastRowLength)
    ReadChangeTokens(lines.Current(), kFirstOfLastRow, zones.zones, zones.changes);
}

void ParseATMLine(std::string_view text, LoadedZones& zones) {
  const FixedLine<36> line(text);
  const ATMLayout& layout = text.size() < kLayoutFrom ? kOldLayout : kLayout;
  const Engine* engine = layout.engines;
  while (!line.Has(layout.engineAt, engine->text)) ++engine;
  zones.intAtmosphericPressure = line.Whole(8, 3);
  zones.chip.dblEngineSize = engine->size;
  zones.chip.intChipVersion = engine->chipVersion;
  zones.chip.datChipDate = ParseChipDate(line.Text(engine->dateAt, layout.dateLength), kNoDate);
}

}  // namespace tarnview
