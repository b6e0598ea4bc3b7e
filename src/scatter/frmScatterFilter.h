#pragma once

#include "desk/Messages.h"
#include "model/Catalogue.h"
#include "presets/clsScatterFilter.h"
#include "scatter/DataItemCombo.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"

namespace tarnview {

/// Edits one filter: an item, and the bounds or the value that samples must keep to.
class frmScatterFilter : public Form {
 public:
  frmScatterFilter(Host& itsHost, const Catalogue& catalogue, Messages& messages);

  Label lblDataItem{*this, "lblDataItem", "&Data Item"};
  ComboBox imgcboDataItem{*this, "imgcboDataItem"};
  Label lblFrom{*this, "lblFrom", "&From"};
  ComboBox cboFrom{*this, "cboFrom", true};
  Label lblTo{*this, "lblTo", "&To"};
  ComboBox cboTo{*this, "cboTo", true};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// Offers the items of a log family and shows the filter; one on an item that is not offered
  /// takes the first, of which the user is told unless `blnQuiet`.
  void SetScatterFilter(const clsScatterFilter& objFilter, int lngLogFamily, bool blnQuiet);
  /// What was accepted.
  const clsScatterFilter& GetScatterFilter() const { return filter_; }

 private:
  /// The item chosen; nullptr where none is offered.
  const clsLogDataItem* Item() const;
  bool IsList() const;
  void imgcboDataItem_Click();
  void BoundIsLeft(ComboBox& box);
  bool Recognise(ComboBox& box);
  void Refuse(ComboBox& box);
  clsScatterFilter FilterInWindow() const;
  void cmdOK_Click();

  const Catalogue& catalogue_;
  Messages& messages_;
  DataItemCombo items_{imgcboDataItem};
  int family_ = 1;
  clsScatterFilter filter_;
};

}  // namespace tarnview
