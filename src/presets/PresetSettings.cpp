#include "presets/PresetSettings.h"

#include "base/Text.h"
#include "presets/PresetRecords.h"

namespace tarnview {
namespace {

constexpr const char* kSampleSection = "New Preset Sample Graphs";
constexpr const char* kScatterSection = "New Preset Scatter Graphs";

/// Reads the records of a section from 1 up to the first without a name.
template <class Presets, class Read>
void ReadAll(const Read& read, const TellUnknownItems& tell, Presets& presets) {
  for (int n = 1;; ++n) {
    auto found = read(n);
    if (found.preset.strName.empty()) return;
    if (!found.unknownItems.empty()) tell(found.unknownItems);
    if (found.preset.lngLogFamily == 0) found.preset.lngLogFamily = 1;
    presets.AddDirect(std::move(found.preset));
  }
}

template <class Preset>
void WriteAll(const PresetCollection<Preset>& presets, IniWriter& file) {
  int n = 0;
  for (const Preset& preset : presets) {
    Preset named = preset;
    if (Trim(named.strName).empty()) named.strName = PresetCollection<Preset>::NEW_NAME;
    WriteToFile(named, file, ++n, true);
  }
}

}  // namespace

void ReadSamplePresets(const IniTable& table, const TellUnknownItems& tell,
                       clsSampleGraphPresets& presets) {
  ReadAll([&](int n) { return ReadSamplePreset(table, kSampleSection, n); }, tell, presets);
  ReadOldSamplePresets(table, presets);
}

void ReadScatterPresets(const IniTable& table, const clsLogDataItems& fixedItems,
                        const clsLogDataItems& universalItems, const TellUnknownItems& tell,
                        clsScatterGraphPresets& presets) {
  ReadAll(
      [&](int n) {
        return ReadScatterPreset(table, kScatterSection, n, fixedItems, universalItems);
      },
      tell, presets);
  ReadOldScatterPresets(table, fixedItems, presets);
}

void WriteSamplePresets(const clsSampleGraphPresets& presets, IniWriter& file) {
  WriteAll(presets, file);
}

void WriteScatterPresets(const clsScatterGraphPresets& presets, IniWriter& file) {
  WriteAll(presets, file);
}

}  // namespace tarnview
