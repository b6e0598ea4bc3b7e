#pragma once

#include <string>

#include "desk/Messages.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Asks for the name of a new preset.
class frmNewPresetName : public Form {
 public:
  frmNewPresetName(Host& itsHost, Messages& messages, const std::string& name);

  Label lblName{*this, "lblName", "&Name"};
  TextBox txtName{*this, "txtName"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// What was accepted; never empty.
  const std::string& strName() const { return name_; }

 private:
  void cmdOK_Click();

  Messages& messages_;
  std::string name_;
};

}  // namespace tarnview
