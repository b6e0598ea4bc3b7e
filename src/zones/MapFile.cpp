#include "zones/MapFile.h"

#include <algorithm>
#include <limits>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "base/TextFile.h"
#include "zones/ChipIdentity.h"
#include "zones/ChipRules.h"
#include "zones/ZoneDefaults.h"

namespace tarnview {
namespace {

constexpr std::size_t kZonesOfLine = 16, kFieldWidth = 4,
                      kZoneLineLength = kZonesOfLine * kFieldWidth;
constexpr std::size_t kFewestLines = 15;  ///< old firmware has no z800 to z875
constexpr std::string_view kNotes = " Notes:", kEndOfNotes = " End Of Notes";
constexpr std::string_view kLineEnd = "\r\n";

std::int16_t ToShort(std::int32_t value) {
  using Limits = std::numeric_limits<std::int16_t>;
  if (value < Limits::min() || value > Limits::max()) throw RuntimeError(6, "Overflow");
  return static_cast<std::int16_t>(value);
}

/// What stands behind the first `start` characters of a line.
std::string_view Behind(std::string_view line, std::size_t start) {
  if (line.size() > start) return line.substr(start);
  return std::string_view();
}

/// 0, which no line of the file may mean, stays for the defaults.
int ChipVersion(std::string_view text) {
  if (StringToLong(text) == 0) return 0;
  return ValidateChipVersion(text);
}

/// Reading, line by line.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {}

  ZoneMap map;
  std::size_t lines = 0;  ///< of zones

  void Read() {
    bool found = true;
    while (found && line_.size() != kZoneLineLength) found = Next();
    while (found && (line_.empty() || line_.size() == kZoneLineLength)) {
      if (!line_.empty()) TakeZones();
      found = Next();
    }
    // The line that ended the zones is the first to look at.
    for (; found; found = Next()) TakeTrailer();
  }

 private:
  bool Next() { return TakeLine(rest_, line_); }

  void TakeZones() {
    if (lines * kZonesOfLine >= map.zones.size()) {
      ++lines;
      throw RuntimeError(9, "Subscript out of range");
    }
    for (std::size_t c = 0; c < kZonesOfLine; ++c)
      map.zones[kZonesOfLine * lines + c] =
          ToShort(StringToLong(line_.substr(kFieldWidth * c + 1, kFieldWidth - 1)));
    ++lines;
  }

  void TakeTrailer() {
    static constexpr struct {
      std::string_view start;
      void (*take)(ZoneMap& map, std::string_view line);
    } kFields[] = {
        {" Engine Size",
         [](ZoneMap& m, std::string_view l) {
           m.chip.dblEngineSize = StringToDouble(Behind(l, 14));
         }},
        {" Chip Date: ",
         [](ZoneMap& m, std::string_view l) {
           m.chip.datChipDate = ParseChipDate(Trim(Behind(l, 12)), m.chip.datChipDate);
         }},
        {" Chip Versio",
         [](ZoneMap& m, std::string_view l) {
           m.chip.intChipVersion = ChipVersion(Behind(l, 15));
         }},
        {" Atmospheric",
         [](ZoneMap& m, std::string_view l) {
           m.intAtmosphericPressure = ToShort(StringToLong(Behind(l, 23)));
         }},
    };
    for (const auto& field : kFields)
      if (line_.starts_with(field.start)) field.take(map, line_);
    if (line_ == kNotes) TakeNotes();
  }

  /// An empty line at their start does not count as a line: kept on purpose.
  void TakeNotes() {
    while (Next() && line_ != kEndOfNotes) {
      if (!map.strNotes.empty()) map.strNotes += kLineEnd;
      map.strNotes += line_;
    }
  }

  std::string_view rest_, line_;
};

std::string ZoneLine(const ZoneSettings& zones, std::size_t line) {
  std::string text;
  for (std::size_t c = 0; c < kZonesOfLine; ++c) {
    const int value = zones[kZonesOfLine * line + c];
    if (value >= 0)
      text += " " + PaddedText(value, 3);
    else
      text += "  -1";
  }
  return text;
}

/// The lines behind which an empty one stands: two of general settings, the end of the fuel and the
/// ignition grid.
constexpr std::size_t kBeforeGap[] = {0, 1, 7, 13};

void AddZones(const ZoneMap& map, std::vector<std::string>& lines) {
  // On 1 March 2001 itself, chips count as old here alone: kept on purpose.
  std::size_t count = kFewestLines;
  if (map.chip.datChipDate > kNewChipDate) count = kFewestLines + 1;
  for (std::size_t line = 0; line < count; ++line) {
    lines.push_back(ZoneLine(map.zones, line));
    if (std::find(std::begin(kBeforeGap), std::end(kBeforeGap), line) != std::end(kBeforeGap))
      lines.emplace_back();
  }
}

}  // namespace

MapReading ParseMap(std::string_view bytes, const Settings& settings, bool quiet) {
  MapReading reading;
  Reader reader(bytes);
  try {
    reader.Read();
  } catch (const RuntimeError& error) {
    reading.error = std::to_string(error.number) + ", " + error.what();
  }
  reading.read = reader.lines >= kFewestLines;
  if (!reading.read) return reading;
  LoadedZones loaded;
  SetMap(loaded, reader.map);
  reading.messages = ApplyZoneDefaults(loaded, settings, quiet);
  reading.map = MapOf(loaded);
  return reading;
}

std::string UnreadFileError(FileSystem& disk, const std::string& path) {
  if (disk.FileExists(path)) return "75, Path/File access error";
  return "53, File not found";
}

MapReading ReadMapFile(FileSystem& disk, const std::string& path, const Settings& settings,
                       bool quiet) {
  const auto bytes = ReadText(disk, path);
  if (bytes) return ParseMap(*bytes, settings, quiet);
  MapReading none;
  none.error = UnreadFileError(disk, path);
  return none;
}

std::string MapText(const ZoneMap& map, const Moment& now) {
  std::vector<std::string> lines{" Tarnview MAP File", " File Created: " + LogTime(now), ""};
  AddZones(map, lines);
  lines.emplace_back();
  lines.push_back(" Engine Size: " + std::string(EngineSizeText(map.chip.dblEngineSize)));
  lines.push_back(" Chip Date: " + DateText(map.chip.datChipDate));
  lines.push_back(" Chip Version: " + std::to_string(map.chip.intChipVersion));
  lines.push_back(" Atmospheric Pressure: " + PaddedText(map.intAtmosphericPressure, 3));
  lines.emplace_back(kNotes);
  lines.push_back(map.strNotes);
  lines.emplace_back(kEndOfNotes);
  return Join(lines, kLineEnd) + std::string(kLineEnd);
}

bool WriteMapFile(FileSystem& disk, const std::string& path, const ZoneMap& map,
                  const Moment& now) {
  return disk.Write(path, MapText(map, now));
}

}  // namespace tarnview
