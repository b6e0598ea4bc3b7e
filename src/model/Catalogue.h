#pragma once

#include <vector>

#include "model/Column.h"
#include "model/clsLogDataItems.h"

namespace tarnview {

/// The data items of all logs with a fixed layout, and of the definitions of Universal logs.
struct Catalogue {
  clsLogDataItems gcolFixedDataItems;      ///< the built-in 83, with the user's display properties
  clsLogDataItems gcolDefaultDataItems;    ///< the same, untouched
  clsLogDataItems gcolUniversalDataItems;  ///< those of the current definition
};

/// Columns of a sample.
inline constexpr int gintColumnCount = kColumnCount;

/// The ids, 1 to 6, of the families whose flag is set.
std::vector<int> MakeLogFamilyList(bool f1, bool f2, bool f3, bool f4, bool f5, bool f6);

/// The built-in catalogue of 83 items.
Catalogue BuildDataItemCatalogue();

}  // namespace tarnview
