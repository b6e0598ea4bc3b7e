#include "presets/SampleGraphPresetFile.h"

#include "base/Text.h"
#include "model/IniFile.h"
#include "model/IniKeys.h"
#include "presets/PresetRecords.h"

namespace tarnview {
namespace {

constexpr std::string_view kDetails = "Preset Sample Graph Details:";
/// A file holds one preset, always of this number.
constexpr int kGraphNo = 1;

}  // namespace

std::string SampleGraphPresetFileText(const clsSampleGraphPreset& preset, bool blnWriteFamily, const Moment& now) {
  IniWriter record;
  WriteToFile(preset, record, kGraphNo, blnWriteFamily);
  return "Tarnview Preset Sample Graph File\r\nFile Created: " + LogTime(now) + "\r\n\r\n" + std::string(kDetails) +
         "\r\n" + record.Text();
}

std::optional<clsSampleGraphPreset> ReadSampleGraphPresetFile(std::string_view text) {
  std::string_view line;
  do {
    if (!TakeLine(text, line)) return std::nullopt;
  } while (line != kDetails);
  const IniTable table = ReadINIFileToArray(text);
  clsSampleGraphPreset preset = ReadSamplePreset(table, "", kGraphNo).preset;
  // Items that no log has are told of as well, in the file's order.
  if (const std::string* items = table.Find("", "Graph 1 Data Items")) preset.colDataItems = ReadItemNumbers(*items);
  return preset;
}

}  // namespace tarnview
