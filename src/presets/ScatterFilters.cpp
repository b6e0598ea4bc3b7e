#include "presets/ScatterFilters.h"

#include <algorithm>

#include "base/Numbers.h"

namespace tarnview {
namespace {

/// Where a bound stands in the item's list; -1 for one that is no place in it.
int ListPlace(double bound, const clsLogDataItem& item) {
  const bool inside = bound >= 0 && bound < static_cast<double>(item.varDescList.size());
  if (inside && bound == RoundToLong(bound)) return RoundToLong(bound);
  return -1;
}

}  // namespace

std::string FilterBoundText(double bound, const clsLogDataItem& item) {
  if (bound == kBoundNotSet) return "";
  int place = -1;
  if (item.intType == kListItem) place = ListPlace(bound, item);
  if (place < 0) return NumberText(bound);
  return item.varDescList[static_cast<std::size_t>(place)];
}

std::string FilterPrintString(const clsScatterFilter& objFilter, const clsLogDataItems& objItems) {
  if (objFilter.lngDataItemSeq < 1 || objFilter.lngDataItemSeq > objItems.Count()) return "";
  const clsLogDataItem& item = objItems.Item(objFilter.lngDataItemSeq);
  std::string text = item.strShortName + " [" + item.strLongName + "]";
  if (item.intType == kListItem) return text + " = " + FilterBoundText(objFilter.dblFrom, item);
  if (objFilter.dblFrom != kBoundNotSet)
    text += " from " + FilterBoundText(objFilter.dblFrom, item);
  if (objFilter.dblTo != kBoundNotSet) text += " to " + FilterBoundText(objFilter.dblTo, item);
  return text;
}

std::vector<int> RemoveNonDisplayFilters(clsScatterFilters& objFilters, const Catalogue& catalogue,
                                         int lngLogFamily) {
  const DataItemList offered = FilterItems(catalogue, lngLogFamily);
  clsScatterFilters kept;
  std::vector<int> removed;
  for (const clsScatterFilter& filter : objFilters) {
    const auto isOfFilter = [&](const clsLogDataItem* item) {
      return item->intSeq == filter.lngDataItemSeq;
    };
    if (std::any_of(offered.begin(), offered.end(), isOfFilter))
      kept.AddDirect(filter);
    else
      removed.push_back(filter.lngDataItemSeq);
  }
  objFilters = std::move(kept);
  return removed;
}

}  // namespace tarnview
