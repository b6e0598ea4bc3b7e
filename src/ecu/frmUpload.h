#pragma once

#include <string>
#include <vector>

#include "ecu/EcuWorld.h"
#include "ecu/UploadOptions.h"
#include "ui/CheckBox.h"
#include "ui/ComboBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/ListBox.h"
#include "ui/TextBox.h"

namespace tarnview {

/// What a change comparison file is chosen from.
struct ComparisonChoices {
  std::vector<std::string> recentFiles;  ///< logs and MAP files, the latest first
  std::string filter;                    ///< of the open dialog, for both
};

/// Asks how zone settings are to be sent to the ECU. It starts with the user's defaults.
class frmUpload : public Form {
 public:
  frmUpload(const EcuWorld& world, ComparisonChoices choices);

  ControlArray<CheckBox> chkOption{*this, "chkOption", UpTo(4), std::string()};
  Label lblCCF{*this, "lblCCF", "C&hange Comparison File"};
  TextBox txtCCF{*this, "txtCCF"};
  CommandButton cmdCCF{*this, "cmdCCF", "B&rowse..."};
  ListBox lstCCF{*this, "lstCCF"};
  Label lblAutoTune{*this, "lblAutoTune", "&Auto Tune"};
  ComboBox cboAutoTune{*this, "cboAutoTune"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  UploadOptions Chosen() const;

 private:
  void EnableComparison();
  void cmdCCF_Click();

  EcuWorld world_;
  ComparisonChoices choices_;
};

}  // namespace tarnview
