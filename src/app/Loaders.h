#pragma once

#include <string_view>

#include "loaders/LoadContext.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// Which loader reads which file type.
struct LoaderRow {
  int fileType;
  /// `definition`: of Universal logs; the other layouts are fixed.
  LoadOutcome (*load)(std::string_view bytes, const LoadContext& context,
                      const clsDataLog& definition);
};

/// The row of a file type; nullptr for one that no loader reads.
const LoaderRow* LoaderFor(int fileType);

}  // namespace tarnview
