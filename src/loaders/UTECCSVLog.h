#pragma once

#include "loaders/LoadContext.h"

namespace tarnview {

/// Reads the comma-separated log of the UTEC. Never throws; any bytes are a log or a message.
LoadOutcome LoadUTECCSVLog(std::string_view bytes, const LoadContext& context);

}  // namespace tarnview
