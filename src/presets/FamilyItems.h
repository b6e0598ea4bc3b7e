#pragma once

#include <vector>

#include "model/Catalogue.h"
#include "model/clsLogDataItem.h"

namespace tarnview {

/// The data items of a log family: those of the Universal definition, or the built-in ones.
const clsLogDataItems& ItemsOfFamily(const Catalogue& catalogue, int lngLogFamily);

using DataItemList = std::vector<const clsLogDataItem*>;

// What a scatter graph offers of a family's items, in display order; "Sample" and "Secs" always.

/// For an axis: what can be plotted.
DataItemList AxisItems(const Catalogue& catalogue, int lngLogFamily);
/// For a filter: what is displayed.
DataItemList FilterItems(const Catalogue& catalogue, int lngLogFamily);

}  // namespace tarnview
