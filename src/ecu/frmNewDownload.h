#pragma once

#include "ecu/EcuWorld.h"
#include "ecu/NewFile.h"
#include "ui/CheckBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Frame.h"
#include "ui/Label.h"
#include "ui/OptionButton.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Asks what is to be captured from the ECU, and under which name.
class frmNewDownload : public Form {
 public:
  frmNewDownload(const EcuWorld& world, const NewFile& proposed);

  Frame fraFileType{*this, "fraFileType", "File Type"};
  ControlArray<OptionButton> radFileType{*this, "radFileType", UpTo(2), std::string("fraFileType"),
                                         std::string()};
  Label lblFileName{*this, "lblFileName", "File &Name"};
  TextBox txtFileName{*this, "txtFileName"};
  Label lblHelpText{
      *this, "lblHelpText",
      "The new file will be created in the default working directory.  Do not include a path."};
  CheckBox chkRetainBIN{*this, "chkRetainBIN", "&Retain Binary File"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  NewFile Chosen() const;

 private:
  NewFileType Type() const {
    if (radFileType(0).Value) return NewFileType::DataLog;
    return NewFileType::ZoneSettings;
  }
  void radFileType_Click();
  /// False: the name was refused, and has the focus.
  bool ValidateName();
  void cmdOK_Click();

  EcuWorld world_;
};

}  // namespace tarnview
