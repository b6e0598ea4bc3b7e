#include "universal/DefinitionPresets.h"

namespace tarnview {
namespace {

template <class Presets>
void Join(const Presets& from, Presets& to, bool clear) {
  if (from.Count() == 0) return;
  if (clear) to.RemoveFamily(kUniversalLogFamily);
  to.AddCollection(from);
}

}  // namespace

void AddDefinitionPresets(const clsDataLog& definition, clsSampleGraphPresets& samples,
                          clsScatterGraphPresets& scatters, bool clear) {
  Join(definition.objPresetSampleGraphs, samples, clear);
  Join(definition.objPresetScatterGraphs, scatters, clear);
}

}  // namespace tarnview
