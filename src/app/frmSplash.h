#pragma once

#include <functional>

#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"
#include "ui/Timer.h"

namespace tarnview {

/// The window that stands while the program starts.
class frmSplash : public Form {
 public:
  explicit frmSplash(Host& itsHost);

  Label lblTitle{*this, "lblTitle", "Tarnview"};
  Label lblVersion{*this, "lblVersion"};
  Label lblPlatform{*this, "lblPlatform"};
  CommandButton cmdClose{*this, "cmdClose", "&Continue"};
  Timer tmrTimer{*this, "tmrTimer", 1500};

 private:
  void tmrTimer_Timer();
  void cmdClose_Click();
};

}  // namespace tarnview
