#pragma once

#include <string>
#include <vector>

#include "model/clsLogDataItems.h"
#include "universal/ShapeColumn.h"
#include "universal/TimeBase.h"
#include "universal/TitleDictionary.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// What a column of a log becomes.
struct ShapeItem {
  int item = 0;  ///< intSeq of the catalogue; from 101 up: an item of the log's own; 0: nothing
  std::string name, description, unit;
  double factor = 1, offset = 0;  ///< a number of the log x factor + offset is in `unit`
  int places = 0;                 ///< 0 to 5, kept of a value
  double displayFactor = 1;       ///< value to height on the Sample Graph
  bool shown = true;              ///< in the lists of items
  bool list = false;              ///< texts, in place of numbers
  std::string why;
};

/// One for each column: the item of the catalogue that its title is known as, where unit and values
/// agree, else one of its own. No two columns get the same item.
std::vector<ShapeItem> ChooseItems(const std::vector<ShapeColumn>& columns, const TimeBase& time,
                                   const TitleDictionary& dictionary,
                                   const clsLogDataItems& catalogue);

/// The unit in which an item of the catalogue is kept for a log of unknown shape; "" for none.
std::string_view UnitOfItem(int item);

/// A colour that differs from those of the numbers before it, 0xBBGGRR.
int ColourOfOwnItem(int item);

}  // namespace tarnview
