#include "presets/ScatterGraphPresetFile.h"

#include <algorithm>
#include <map>
#include <vector>

#include "base/Numbers.h"
#include "presets/PresetFile.h"
#include "presets/PresetRecords.h"

namespace tarnview {
namespace {

constexpr PresetFileLines kLines{"Tarnview Preset Scatter Graph File",
                                 "Preset Scatter Graph Details:"};
constexpr std::string_view kFilter = "Graph 1 Filter ";

struct FilterLine {
  int position;  ///< of its filter, from 1
  std::string_view field, value;
};

/// The lines of filters, which stand in the order in which the file first names them; "02" and "2"
/// are the same one.
std::vector<FilterLine> FilterLines(const IniTable& table) {
  std::map<int, int> positions;  // by the filter's number in the file
  std::vector<FilterLine> lines;
  for (const IniRow& row : table.Rows()) {
    const std::string_view key = row.key;
    const auto blank = key.starts_with(kFilter) ? key.find(' ', kFilter.size()) : key.npos;
    if (blank == key.npos || !row.section.empty()) continue;
    const int number = StringToLong(key.substr(kFilter.size(), blank - kFilter.size()));
    const int next = static_cast<int>(positions.size()) + 1;
    lines.push_back(
        {positions.try_emplace(number, next).first->second, key.substr(blank + 1), row.value});
  }
  return lines;
}

clsScatterFilters ReadFilters(const IniTable& table, const clsLogDataItems& objItems) {
  std::vector<FilterLine> lines = FilterLines(table);
  // A lower bound is held against its item, which may stand further down.
  std::stable_partition(lines.begin(), lines.end(),
                        [](const auto& line) { return line.field == kFilterItem; });
  clsScatterFilters filters;
  for (const FilterLine& line : lines) {
    while (filters.Count() < line.position) filters.AddDirect({});
    ReadFilterField(line.field, line.value, objItems, filters.Item(line.position));
  }
  return filters;
}

}  // namespace

std::string ScatterGraphPresetFileText(const clsScatterGraphPreset& preset, bool blnWriteFamily,
                                       const Moment& now) {
  IniWriter record;
  WriteToFile(preset, record, kFilePresetNo, blnWriteFamily);
  return PresetFileText(kLines, now, record);
}

std::optional<clsScatterGraphPreset> ReadScatterGraphPresetFile(std::string_view text,
                                                                const clsLogDataItems& objItems) {
  const auto table = ReadPresetFile(kLines, text);
  if (!table) return std::nullopt;
  clsScatterGraphPreset preset =
      ReadScatterPreset(*table, "", kFilePresetNo, objItems, objItems).preset;
  preset.objFilters = ReadFilters(*table, objItems);
  preset.FileOpenDraw = false;
  return preset;
}

}  // namespace tarnview
