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
                          clsScatterGraphPresets& scatters) {
  Join(definition.objPresetSampleGraphs, samples, false);
  Join(definition.objPresetScatterGraphs, scatters, false);
}

void OfferDefinitionPresets(const clsDataLog& definition, clsSampleGraphPresets& samples,
                            clsScatterGraphPresets& scatters, Messages& messages) {
  if (definition.objPresetSampleGraphs.Count() + definition.objPresetScatterGraphs.Count() == 0) return;
  const Reply reply = messages.Tell(
      "The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter Graphs.\r\n"
      "Do you want to clear your existing sets of Universal log family preset graphs before adding the new ones?",
      kBoxYesNoCancel | kBoxQuestion | kBoxSecondIsDefault);
  if (reply == Reply::Cancel) return;
  Join(definition.objPresetSampleGraphs, samples, reply == Reply::Yes);
  Join(definition.objPresetScatterGraphs, scatters, reply == Reply::Yes);
}

}  // namespace tarnview
