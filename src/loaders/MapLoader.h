#pragma once

#include <string_view>

#include "loaders/LoadContext.h"

namespace tarnview {

/// Opens a MAP file in the place of a log: zones with their chip and notes, no samples. Any bytes
/// are a map or a message.
LoadOutcome LoadMap(std::string_view bytes, const LoadContext& context);

}  // namespace tarnview
