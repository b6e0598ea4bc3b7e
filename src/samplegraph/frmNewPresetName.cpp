#include "samplegraph/frmNewPresetName.h"

#include "base/Text.h"

namespace tarnview {
frmNewPresetName::frmNewPresetName(Host& itsHost, Messages& messages, const std::string& name)
    : Form(itsHost, "frmNewPresetName", "New Preset Graph Name"), messages_(messages) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "PresetSampleGraphs";
  txtName.Text = name;
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmNewPresetName::cmdOK_Click() {
  name_ = Trim(txtName.Text());
  if (name_.empty()) {
    messages_.ShowMessage(Message::NameMissing);
    txtName.SetFocus();
    return;
  }
  Accept();
}

}  // namespace tarnview
