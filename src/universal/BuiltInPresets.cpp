#include "universal/BuiltInPresets.h"

#include <algorithm>

#include "presets/PresetRecords.h"
#include "universal/DefaultDataLogDefinition.h"

namespace tarnview {
namespace {

template <class Presets>
void AddMissing(const Presets& from, Presets& to) {
  for (const auto& preset : from)
    if (std::none_of(to.begin(), to.end(), [&](const auto& one) {
          return one.lngLogFamily == kUniversalLogFamily && one.strName == preset.strName;
        }))
      to.AddDirect(preset);
}

/// A preset is what its record says.
template <class Preset>
std::string RecordOf(const Preset& preset) {
  IniWriter record;
  WriteToFile(preset, record, 1, true);
  return record.Text();
}

template <class Presets, class Preset>
bool Has(const Presets& presets, const Preset& preset) {
  const std::string record = RecordOf(preset);
  return std::any_of(presets.begin(), presets.end(), [&](const Preset& one) { return RecordOf(one) == record; });
}

}  // namespace

void AddBuiltInPresets(clsSampleGraphPresets& samples, clsScatterGraphPresets& scatters) {
  const clsDataLog definition = DefaultDataLogDefinition();
  AddMissing(definition.objPresetSampleGraphs, samples);
  AddMissing(definition.objPresetScatterGraphs, scatters);
}

BuiltInPresets::BuiltInPresets() {
  const clsDataLog definition = DefaultDataLogDefinition();
  samples_ = definition.objPresetSampleGraphs;
  scatters_ = definition.objPresetScatterGraphs;
}

bool BuiltInPresets::Holds(const clsSampleGraphPreset& preset) const { return Has(samples_, preset); }
bool BuiltInPresets::Holds(const clsScatterGraphPreset& preset) const { return Has(scatters_, preset); }

}  // namespace tarnview
