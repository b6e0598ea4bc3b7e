#pragma once

#include <string>
#include <string_view>

#include "universal/clsDataLog.h"

namespace tarnview {

/// Reads and checks the text of a definition file; throws its first fault. `path` is told in the
/// faults' details, `catalogue` holds the items that columns may feed.
clsDataLog ReadDataLogDefinition(std::string_view text, const std::string& path,
                                 const clsLogDataItems& catalogue);

}  // namespace tarnview
