#pragma once

#include "loaders/LoadContext.h"

namespace tarnview {

/// Reads the fixed-width log of the Tec-2. Never throws; any bytes are a log or a message.
LoadOutcome LoadTec2Log(std::string_view bytes, const LoadContext& context);

}  // namespace tarnview
