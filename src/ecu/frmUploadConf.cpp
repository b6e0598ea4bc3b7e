#include "ecu/frmUploadConf.h"

#include "zones/ChipIdentity.h"

namespace tarnview {

frmUploadConf::frmUploadConf(Host& itsHost, const Settings& settings, Help& help)
    : Form(itsHost, "frmUploadConf", "Upload Confirmation"), help_(help) {
  // Enter must not be enough to write to an ECU.
  DefaultButton = &cmdNo;
  CancelButton = &cmdNo;
  lblChipDate.Caption = DayText(settings.gdatDefaultChipDate);
  lblEngineSize.Caption = std::string(EngineSizeText(settings.gdblDefaultEngineSize));
  cmdYes.Click = [this] {
    confirmed_ = true;
    Unload();
  };
  cmdNo.Click = [this] { Unload(); };
}

bool frmUploadConf::Form_KeyUp(const KeyPress& key) {
  if (key != KeyPress{"F1"}) return false;
  help_.ShowHelp("UploadConfirmation");
  return true;
}

}  // namespace tarnview
