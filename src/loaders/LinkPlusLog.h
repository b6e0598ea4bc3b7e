#pragma once

#include "loaders/LoadContext.h"

namespace tarnview {

/// Reads the tab-separated log of the Link Plus. Never throws; any bytes are a log or a message.
LoadOutcome LoadLinkPlusLog(std::string_view bytes, const LoadContext& context);

}  // namespace tarnview
