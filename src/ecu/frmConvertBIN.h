#pragma once

#include <string>

#include "ecu/EcuWorld.h"
#include "ui/CheckBox.h"
#include "ui/CommandButton.h"
#include "ui/ControlArray.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Turns a binary log that was kept into a text log, by the outside conversion program.
class frmConvertBIN : public Form {
 public:
  /// `currentFile` is the file that is open, "" for none: where the paths start.
  frmConvertBIN(const EcuWorld& world, const std::string& currentFile);

  ControlArray<Label> lblPath{*this, "lblPath", UpTo(2), std::string()};
  ControlArray<TextBox> txtPath{*this, "txtPath", UpTo(2), std::string()};
  ControlArray<CommandButton> cmdBrowse{*this, "cmdBrowse", UpTo(2), std::string("Browse...")};
  CheckBox chkAutoLoad{*this, "chkAutoLoad", "&Automatically Load After Conversion"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// The new log; "" where none was made.
  const std::string& TargetPath() const { return target_; }
  bool LoadIt() const { return chkAutoLoad.Value; }

 private:
  enum Path { Source, Target };
  void LeavePath(Path path);
  /// False: the text was refused, and has the focus.
  bool ValidatePath(Path path);
  void cmdBrowse_Click(Path path);
  void cmdOK_Click();

  EcuWorld world_;
  std::string target_;
};

}  // namespace tarnview
