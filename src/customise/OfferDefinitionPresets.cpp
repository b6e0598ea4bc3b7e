#include "customise/OfferDefinitionPresets.h"

#include "universal/DefinitionPresets.h"

namespace tarnview {

void OfferDefinitionPresets(const clsDataLog& definition, clsSampleGraphPresets& samples,
                            clsScatterGraphPresets& scatters, Messages& messages) {
  if (definition.objPresetSampleGraphs.Count() + definition.objPresetScatterGraphs.Count() == 0)
    return;
  const Reply reply = messages.Tell(
      "The Data Log Definition you have loaded contains Preset Sample Graphs or Preset Scatter "
      "Graphs.\r\n"
      "Do you want to clear your existing sets of Universal log family preset graphs before adding "
      "the new ones?",
      kBoxYesNoCancel | kBoxQuestion | kBoxSecondIsDefault);
  if (reply == Reply::Cancel) return;
  AddDefinitionPresets(definition, samples, scatters, reply == Reply::Yes);
}

}  // namespace tarnview
