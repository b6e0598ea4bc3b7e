#pragma once

#include "universal/clsDataLog.h"

namespace tarnview {

/// Adds a definition's presets of both kinds to the user's. `clear`: those of the Universal family
/// go first; a kind that the definition has none of stays as it is.
void AddDefinitionPresets(const clsDataLog& definition, clsSampleGraphPresets& samples,
                          clsScatterGraphPresets& scatters, bool clear = false);

}  // namespace tarnview
