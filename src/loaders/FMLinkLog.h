#pragma once

#include <string_view>

#include "loaders/LoadContext.h"

namespace tarnview {

/// Reads the text log of the FM Link logging program: samples, zone settings, lambda/knock changes,
/// data tags. `silent` keeps back the messages about defaults. Never throws; any bytes are a log or
/// a message.
LoadOutcome LoadFMLinkLog(std::string_view bytes, const LoadContext& context, bool silent);

}  // namespace tarnview
