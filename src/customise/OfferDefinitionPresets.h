#pragma once

#include "desk/Messages.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// Asks what to do with the presets of a definition that has any: Yes clears those of the Universal
/// family first, No adds to them, Cancel adds nothing. A kind that the definition has none of stays
/// as it is.
void OfferDefinitionPresets(const clsDataLog& definition, clsSampleGraphPresets& samples,
                            clsScatterGraphPresets& scatters, Messages& messages);

}  // namespace tarnview
