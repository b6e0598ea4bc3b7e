#pragma once

#include <string>

#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/TextBox.h"

namespace tarnview {

/// Asks for a comment on a power graph that is about to be saved.
class frmPowerBenchComments : public Form {
 public:
  frmPowerBenchComments(Host& itsHost, const std::string& comments);

  Label lblComments{*this, "lblComments", "&Comments"};
  TextBox txtComments{*this, "txtComments"};
  CommandButton cmdOK{*this, "cmdOK", "OK"};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

  /// In one line, as the file holds it.
  std::string Comments() const;
};

}  // namespace tarnview
