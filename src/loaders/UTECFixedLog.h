#pragma once

#include "loaders/LoadContext.h"

namespace tarnview {

/// Reads the fixed-width log of the UTEC, in any of its six layouts. Never throws; any bytes are a
/// log or a message.
LoadOutcome LoadUTECFixedLog(std::string_view bytes, const LoadContext& context);

}  // namespace tarnview
