#pragma once

#include <string_view>

#include "loaders/LoadContext.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// Reads a delimited text log through a definition; the context's items are those that the
/// definition generates. Never throws; any bytes are a log or a message. The path of the log, which
/// some messages name, is that of the open log.
LoadOutcome LoadGenericDataLog(std::string_view bytes, const LoadContext& context,
                               const clsDataLog& definition);

}  // namespace tarnview
