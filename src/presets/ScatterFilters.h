#pragma once

#include <string>
#include <vector>

#include "presets/FamilyItems.h"
#include "presets/clsScatterFilter.h"

namespace tarnview {

/// A bound as users read it: the text of a list item's value, else the number; "" where it is not
/// set.
std::string FilterBoundText(double bound, const clsLogDataItem& item);

/// One filter for the heads of prints and exports: "RPM [RPM] from 1000 to 2000", "A/C [A/C Switch]
/// = On". Empty for a filter on no item.
std::string FilterPrintString(const clsScatterFilter& objFilter, const clsLogDataItems& objItems);

/// Drops the filters on items that the family's windows do not offer (FilterItems); the numbers of
/// those items.
std::vector<int> RemoveNonDisplayFilters(clsScatterFilters& objFilters, const Catalogue& catalogue,
                                         int lngLogFamily);

}  // namespace tarnview
