#pragma once

#include <string_view>

#include "loaders/FMLinkLog.h"

namespace tarnview {

/// Which loader reads which file type.
struct LoaderRow {
  int fileType;
  LoadOutcome (*load)(std::string_view bytes, const LoadContext& context);
};

/// The row of a file type; nullptr for one that no loader reads.
const LoaderRow* LoaderFor(int fileType);

}  // namespace tarnview
