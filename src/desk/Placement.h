#pragma once

#include <optional>

#include "model/clsWindowConfig.h"
#include "ui/Form.h"

namespace tarnview {

/// Puts a window where its placement says; without one it keeps its design size.
void ApplyPlacement(const std::optional<clsWindowConfig>& config, Form& window);
/// Where a window stands; nothing for one that no toolkit has placed. A minimized one counts as
/// normal, so that it can be seen next time.
std::optional<clsWindowConfig> PlacementOf(const Form& window);

}  // namespace tarnview
