#include "universal/UniversalDataItems.h"

#include <algorithm>

#include "base/Numbers.h"

namespace tarnview {
namespace {

template <class To, class From>
void TakeIfSet(To& to, const Settable<From>& from) {
  if (from.IsSet()) to = static_cast<To>(from.Value());
}

void TakeNumbers(clsLogDataItem& item, const clsDataLogColumn& column) {
  if (column.dblOffset.IsSet() && column.lngColumnDecimalPlaces.IsSet())
    item.lngStorageOffset = RoundToLong(column.Scale() * column.dblOffset);
  if (column.blnSigned) item.lngStorageOffset = 0;
  if (column.lngColumnDecimalPlaces.IsSet()) item.dblFactor = column.Scale();
  if (column.dblMinValue.IsSet()) item.SetMinValue(column.dblMinValue);
  if (column.dblMaxValue.IsSet()) item.SetMaxValue(column.dblMaxValue);
}

void TakeDisplay(clsLogDataItem& item, const clsDataLogColumn& column) {
  TakeIfSet(item.blnDisplayZero, column.blnDisplayZero);
  TakeIfSet(item.blnDisplay, column.blnDisplay);
  if (column.lngDisplayDecimalPlaces.IsSet())
    item.SetDisplayDecimalPlaces(column.lngDisplayDecimalPlaces);
  TakeIfSet(item.lngColour, column.lngColour);
  TakeIfSet(item.lngLineStyle, column.lngLineStyle);
  TakeIfSet(item.lngLineWidth, column.lngLineWidth);
  TakeIfSet(item.dblSampleDisplayFactor, column.dblDisplayFactor);
}

void TakeColumn(clsLogDataItem& item, const clsDataLogColumn& column) {
  item.intType = column.lngType;
  item.blnSigned = column.blnSigned;
  item.strUnit = column.strUnit;
  TakeNumbers(item, column);
  TakeDisplay(item, column);
  if (column.lngType != kValueListColumn) return;
  item.varDescList.clear();
  for (const auto& value : *column.objColumnValues)
    item.varDescList.push_back(value->strDataLogValue);
}

/// Items of a log's own up to the highest number that a column feeds. The numbers between the
/// catalogue's and the first of these stand for nothing; they keep an item's number its place.
void AddOwnItems(clsLogDataItems& items, const clsDataLog& definition) {
  int last = items.Count();
  for (const clsDataLogColumn& column : definition.objColumns)
    last = std::max(last, column.lngDataItemID);
  for (int number = items.Count() + 1; number <= last; ++number) {
    clsLogDataItem item;
    item.intSeq = item.intKey = number;
    item.intType = kScaledItem;
    item.blnDisplay = item.blnSampleGraphPlottable = false;
    items.AddDirect(std::move(item));
  }
  for (const clsDataLogColumn& column : definition.objColumns)
    if (column.lngDataItemID >= kFirstOwnItem)
      items.Item(column.lngDataItemID).blnDisplay =
          items.Item(column.lngDataItemID).blnSampleGraphPlottable = true;
}

}  // namespace

clsLogDataItems GenerateLogDataItemsGeneric(const clsDataLog& objDefinition,
                                            const clsLogDataItems& catalogue) {
  clsLogDataItems items = catalogue.Duplicate();
  AddOwnItems(items, objDefinition);
  for (const clsDataLogColumn& column : objDefinition.objColumns)
    TakeColumn(items.Item(column.lngDataItemID), column);
  for (int id = 1; id <= items.Count(); ++id) {
    clsLogDataItem& item = items.Item(id);
    bool found = false;
    objDefinition.objColumns.DataItemDetails(id, item.strShortName, item.strLongName, found,
                                             item.strColumnTitles);
    if (IsDataItemInDataLogDefinition(id, objDefinition, catalogue))
      item.colApplicableLogFamilies.push_back(kUniversalLogFamily);
  }
  return items;
}

}  // namespace tarnview
