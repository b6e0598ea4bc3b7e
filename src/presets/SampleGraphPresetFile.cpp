#include "presets/SampleGraphPresetFile.h"

#include "model/IniKeys.h"
#include "presets/PresetFile.h"
#include "presets/PresetRecords.h"

namespace tarnview {
namespace {

constexpr PresetFileLines kLines{"Tarnview Preset Sample Graph File",
                                 "Preset Sample Graph Details:"};

}  // namespace

std::string SampleGraphPresetFileText(const clsSampleGraphPreset& preset, bool blnWriteFamily,
                                      const Moment& now) {
  IniWriter record;
  WriteToFile(preset, record, kFilePresetNo, blnWriteFamily);
  return PresetFileText(kLines, now, record);
}

std::optional<clsSampleGraphPreset> ReadSampleGraphPresetFile(std::string_view text) {
  const auto table = ReadPresetFile(kLines, text);
  if (!table) return std::nullopt;
  clsSampleGraphPreset preset = ReadSamplePreset(*table, "", kFilePresetNo).preset;
  // Items that no log has are told of as well, in the file's order.
  if (const std::string* items = table->Find("", "Graph 1 Data Items"))
    preset.colDataItems = ReadItemNumbers(*items);
  return preset;
}

}  // namespace tarnview
