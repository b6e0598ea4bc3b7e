#include "presets/ScatterGraphPresetFile.h"

#include <map>

#include "base/Numbers.h"
#include "presets/PresetFile.h"
#include "presets/PresetRecords.h"

namespace tarnview {
namespace {

constexpr PresetFileLines kLines{"Tarnview Preset Scatter Graph File", "Preset Scatter Graph Details:"};
constexpr std::string_view kFilter = "Graph 1 Filter ";

/// The filters in the order in which the file first names them; "02" and "2" are the same one.
clsScatterFilters ReadFilters(const IniTable& table, const clsLogDataItems& objItems) {
  std::map<int, int> positions;  // by the filter's number in the file
  clsScatterFilters filters;
  for (const IniRow& row : table.Rows()) {
    const std::string_view key = row.key;
    const auto blank = key.starts_with(kFilter) ? key.find(' ', kFilter.size()) : key.npos;
    if (blank == key.npos || !row.section.empty()) continue;
    const int number = StringToLong(key.substr(kFilter.size(), blank - kFilter.size()));
    const auto [place, isNew] = positions.try_emplace(number, filters.Count() + 1);
    if (isNew) filters.AddDirect({});
    ReadFilterField(key.substr(blank + 1), row.value, objItems, filters.Item(place->second));
  }
  return filters;
}

}  // namespace

std::string ScatterGraphPresetFileText(const clsScatterGraphPreset& preset, bool blnWriteFamily, const Moment& now) {
  IniWriter record;
  WriteToFile(preset, record, kFilePresetNo, blnWriteFamily);
  return PresetFileText(kLines, now, record);
}

std::optional<clsScatterGraphPreset> ReadScatterGraphPresetFile(std::string_view text,
                                                                const clsLogDataItems& objItems) {
  const auto table = ReadPresetFile(kLines, text);
  if (!table) return std::nullopt;
  clsScatterGraphPreset preset = ReadScatterPreset(*table, "", kFilePresetNo, objItems, objItems).preset;
  preset.objFilters = ReadFilters(*table, objItems);
  preset.FileOpenDraw = false;
  return preset;
}

}  // namespace tarnview
