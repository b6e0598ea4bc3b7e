#pragma once

#include "model/Settings.h"
#include "ui/CommandButton.h"
#include "ui/Form.h"
#include "ui/Label.h"

namespace tarnview {

/// The last question before an ECU is written to: is it the chip that the user owns? Accepted by
/// Yes alone.
class frmUploadConf : public Form {
 public:
  frmUploadConf(Host& itsHost, const Settings& settings);

  Label lblConfirm{
      *this, "lblConfirm",
      "Confirm that the following information accurately describes the Link ECU chip that the zone "
      "data "
      "is about to be uploaded to.  If it does not, cancel this dialog and correct the default "
      "information within the application's Options window."};
  Label lblWarning{*this, "lblWarning",
                   "WARNING: DO NOT upload into a version of the Link ECU that does not match the "
                   "information below - "
                   "serious damage could occur when the engine is subsequently started."};
  Label lblChipDateTitle{*this, "lblChipDateTitle", "Chip Date"};
  Label lblChipDate{*this, "lblChipDate", ""};
  Label lblEngineSizeTitle{*this, "lblEngineSizeTitle", "Engine Size"};
  Label lblEngineSize{*this, "lblEngineSize", ""};
  Label lblEngineState{*this, "lblEngineState",
                       "Ensure the ignition is on and the engine is either not running or idling, "
                       "and the gearbox is "
                       "in neutral with the clutch up.  Note that if the engine is running, "
                       "changes to some zones will "
                       "not take effect until the engine is subsequently re-started - see the "
                       "accompanying 2comms.txt "
                       "document for details."};
  Label lblContinue{*this, "lblContinue", "Continue with upload ?"};
  CommandButton cmdYes{*this, "cmdYes", "&Yes"};
  CommandButton cmdNo{*this, "cmdNo", "&No"};
};

}  // namespace tarnview
