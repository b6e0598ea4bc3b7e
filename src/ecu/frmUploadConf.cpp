#include "ecu/frmUploadConf.h"

#include "zones/ChipIdentity.h"

namespace tarnview {

frmUploadConf::frmUploadConf(Host& itsHost, const Settings& settings)
    : Form(itsHost, "frmUploadConf", "Upload Confirmation") {
  // Enter must not be enough to write to an ECU.
  DefaultButton = &cmdNo;
  CancelButton = &cmdNo;
  HelpTopic = "UploadConfirmation";
  lblChipDate.Caption = DayText(settings.gdatDefaultChipDate);
  lblEngineSize.Caption = std::string(EngineSizeText(settings.gdblDefaultEngineSize));
  cmdYes.Click = [this] { Accept(); };
  cmdNo.Click = [this] { Unload(); };
}

}  // namespace tarnview
