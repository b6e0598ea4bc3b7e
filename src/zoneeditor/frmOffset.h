#pragma once

#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Asks for a number that is added to the selected cells.
class frmOffset : public Form {
 public:
  explicit frmOffset(Host& itsHost);

  Label lblOffset{*this, "lblOffset", "Offset To Apply to Selected &Range"};
  TextBox txtOffset{*this, "txtOffset", "0"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// -255 to 255.
  int Offset() const;

 private:
  void HoldOffset();
};

}  // namespace tarnview
