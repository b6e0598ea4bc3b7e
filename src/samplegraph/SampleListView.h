#pragma once

#include <map>
#include <string>

#include "model/OpenLog.h"
#include "model/clsFileTypes.h"
#include "model/clsLogDataItems.h"
#include "model/clsLogFamilies.h"
#include "ui/ListView.h"

namespace tarnview {

/// Which data items are rows of a list.
enum SampleListMode : int {
  kAllItems = 0,
  kPlottableItems = 1,
  kDisplayedItems = 2,
  kDisplayedAndCheckedItems = 3,
  kDisplayedInAnyCase = 4
};

/// Checked items by key: "K" and the item number in two digits ("K05").
using CheckedKeys = std::map<std::string, int>;
std::string CheckedKey(int intSeq);

struct SampleListForm {
  bool blnShowLongName = false;  ///< a column of long names; else they are tool tips
  int intMode = kAllItems;
  bool blnSeqColumn = false;  ///< the first column holds the item number, "05"
  int lngFileType = 0;        ///< items of this file type's family; 0 for all
  int lngLogFamily = 0;       ///< items of this family, where it is not 0
  bool pictures = true;       ///< each item's colour, or whether it is shown, beside it
};

/// Fills a list with data items in display order. Checks of rows on show are noted in
/// `objCheckedKeys` first and put back from there, so that rows which are not on show keep theirs.
/// A file type of no family leaves the list alone.
void SetUpSampleListView(ListView& lvw, CheckedKeys& objCheckedKeys, const SampleListForm& form,
                         const clsLogFamilies& families, const clsLogDataItems& objItems);

/// Writes the values of a store index into the second column; a negative one empties it.
void PopulateSampleListView(std::int32_t lngIndex, ListView& lvw, const OpenLog& log);
/// The data items of the rows, in list order.
std::vector<int> ItemsOfRows(const ListView& lvw, bool checkedOnly = false);

}  // namespace tarnview
