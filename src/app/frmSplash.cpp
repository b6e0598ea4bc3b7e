#include "app/frmSplash.h"

#include "app/Version.h"

namespace tarnview {

frmSplash::frmSplash(Host& itsHost) : Form(itsHost, "frmSplash", "Tarnview") {
  lblVersion.Caption = std::string("Version ") + kVersion;
  lblPlatform.Caption = std::string(kPlatform);
  DefaultButton = CancelButton = &cmdClose;
  cmdClose.Enabled = false;
  cmdClose.Click = [this] { cmdClose_Click(); };
  tmrTimer.Tick = [this] { tmrTimer_Timer(); };
}

void frmSplash::tmrTimer_Timer() {
  cmdClose.Enabled = true;
  tmrTimer.Enabled = false;
  cmdClose_Click();
}

void frmSplash::cmdClose_Click() { Unload(); }

}  // namespace tarnview
