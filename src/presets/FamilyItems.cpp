#include "presets/FamilyItems.h"

#include "presets/Clamped.h"

namespace tarnview {
namespace {

/// The axes of time, which every log has.
bool IsTime(const clsLogDataItem& item) {
  return item.intSeq == ItemOf(kSample) || item.intSeq == ItemOf(kSecs);
}

DataItemList ItemsWith(bool clsLogDataItem::*flag, const Catalogue& catalogue, int lngLogFamily) {
  DataItemList items;
  for (const clsLogDataItem* item : ItemsOfFamily(catalogue, lngLogFamily).InDisplayOrder())
    if (IsTime(*item) || (item->*flag && item->InFamily(lngLogFamily))) items.push_back(item);
  return items;
}

}  // namespace

const clsLogDataItems& ItemsOfFamily(const Catalogue& catalogue, int lngLogFamily) {
  if (lngLogFamily == kUniversalLogFamily) return catalogue.gcolUniversalDataItems;
  return catalogue.gcolFixedDataItems;
}

DataItemList AxisItems(const Catalogue& catalogue, int lngLogFamily) {
  return ItemsWith(&clsLogDataItem::blnSampleGraphPlottable, catalogue, lngLogFamily);
}

DataItemList FilterItems(const Catalogue& catalogue, int lngLogFamily) {
  return ItemsWith(&clsLogDataItem::blnDisplay, catalogue, lngLogFamily);
}

}  // namespace tarnview
