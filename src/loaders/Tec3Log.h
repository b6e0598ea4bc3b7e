#pragma once

#include "loaders/LoadContext.h"

namespace tarnview {

/// Reads the fixed-width log of the Tec-3. Never throws; any bytes are a log or a message.
LoadOutcome LoadTec3Log(std::string_view bytes, const LoadContext& context);

}  // namespace tarnview
