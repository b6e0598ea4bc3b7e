#pragma once

#include "customise/OptionsControls.h"
#include "customise/OptionsDraft.h"

namespace tarnview {

/// The page on which data items are shown or hidden and get their line, colour and factor. All goes
/// into the draft.
class DataItemPage {
 public:
  DataItemPage(OptionsControls& window, OptionsDraft& draft);

  /// Lists the items of a family (an id) and selects the first.
  void ShowFamily(int family);
  /// The Universal definition has another name: the list of families says so.
  void UpdateFamilies();
  void CheckAll(bool on);
  /// The typed factor, within its limits.
  void RecordFactorChange();

 private:
  clsLogDataItems& Items();
  /// The item of the highlighted row; nullptr for none.
  clsLogDataItem* Item();
  int Family() const { return window_.cboLogFamily.ListIndex() + 1; }
  void ListItems();
  void PopulateDataItemDisplay();
  void DrawSample();
  void RecordLineStyleChange();
  void RecordLineWidthChange();
  void RecordColourChange();
  void DataItemCheckBox(int row);
  void cmdReset_Click();

  OptionsControls& window_;
  OptionsDraft& draft_;
  bool filling_ = false;  ///< controls change because they are filled, not by the user
};

}  // namespace tarnview
