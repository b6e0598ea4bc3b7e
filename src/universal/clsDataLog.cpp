#include "universal/clsDataLog.h"

namespace tarnview {

bool IsDataItemInDataLogDefinition(int lngDataItemID, const clsDataLog& objDefinition,
                                   const clsLogDataItems& catalogue) {
  if (lngDataItemID >= kFirstOwnItem && objDefinition.blnOwnDataItems)
    return objDefinition.objColumns.DataItemInColumns(lngDataItemID);
  if (lngDataItemID < 1 || lngDataItemID > catalogue.Count()) return false;
  return catalogue.Item(lngDataItemID).blnMandatory ||
         objDefinition.objColumns.DataItemInColumns(lngDataItemID);
}

}  // namespace tarnview
