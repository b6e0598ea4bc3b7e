#pragma once

#include <vector>

#include "desk/Messages.h"
#include "presets/FamilyItems.h"
#include "ui/ComboBox.h"

namespace tarnview {

/// A combo box of data items by their long names; each entry stands for the item's number (intSeq).
class DataItemCombo {
 public:
  explicit DataItemCombo(ComboBox& combo) : combo_(combo) {}

  /// Offers other items; the chosen one stays where it is among them, else the first is chosen.
  void SetItems(const DataItemList& items);
  /// The number of the item chosen; 0 for none.
  int Item() const;
  /// Chooses the item; false, and nothing changes, where it is not offered.
  bool SearchImageComboForDataItem(int item);
  /// Chooses the first.
  void DataItemImageComboDefault();
  /// Chooses the item, else the first, of which the user is told unless `blnQuiet`.
  void Choose(int item, Messages& messages, bool blnQuiet = false);

 private:
  ComboBox& combo_;
  std::vector<int> items_;  ///< as the combo's entries
};

}  // namespace tarnview
