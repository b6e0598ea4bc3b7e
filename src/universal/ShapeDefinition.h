#pragma once

#include <string>

#include "universal/LogShape.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// The definition that loads a log of that shape: each of its columns feeds its item. `name` is the
/// definition's, and `extension` that of such logs. A log without a clock that tells no rate gets
/// `linesASecond`.
clsDataLog DefinitionOfShape(const LogShape& shape, const std::string& name,
                             const std::string& extension, double linesASecond);

}  // namespace tarnview
