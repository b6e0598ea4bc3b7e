#pragma once

#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Asks how many lines a second a log holds that has no clock.
class frmLineFrequency : public Form {
 public:
  frmLineFrequency(Host& itsHost, double linesASecond);

  Label lblNoClock{*this, "lblNoClock",
                   "The log has no clock. How many lines a second did the logger write?"};
  Label lblLineFrequency{*this, "lblLineFrequency", "&Lines a Second"};
  TextBox txtLineFrequency{*this, "txtLineFrequency"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// Within the limits of the setting.
  double LinesASecond() const;
};

}  // namespace tarnview
