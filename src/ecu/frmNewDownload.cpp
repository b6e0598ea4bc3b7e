#include "ecu/frmNewDownload.h"

#include "base/Paths.h"
#include "ecu/NewFileNames.h"
#include "ecu/Overwrite.h"

namespace tarnview {

frmNewDownload::frmNewDownload(const EcuWorld& world, const NewFile& proposed)
    : Form(world.host, "frmNewDownload", "New File"), world_(world) {
  DefaultButton = &cmdOK;
  CancelButton = &cmdCancel;
  HelpTopic = "NewDatalog";
  radFileType(0).Caption = std::string("&Data Log");
  radFileType(0).ToolTip = std::string("Capture a full data log");
  radFileType(1).Caption = std::string("&Zone Settings");
  radFileType(1).ToolTip = std::string("Capture just the ECU zone settings");
  txtFileName.ToolTip = std::string("Name of the data log");
  chkRetainBIN.ToolTip = std::string(
      "Keep the binary file the data logging process generates as well as the final data log");
  radFileType(proposed.type == NewFileType::DataLog ? 0 : 1).Value = true;
  txtFileName.Text = proposed.strFileName;
  chkRetainBIN.Value = proposed.blnRetain;
  chkRetainBIN.Enabled = proposed.type == NewFileType::DataLog;

  for (const auto& choice : radFileType) choice->Click = [this] { radFileType_Click(); };
  txtFileName.LostFocus = [this] {
    if (!IsUnloading() && ActiveControl() != &cmdCancel) ValidateName();
  };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

NewFile frmNewDownload::Chosen() const {
  return {Type(), txtFileName.Text(), chkRetainBIN.Value()};
}

void frmNewDownload::radFileType_Click() {
  chkRetainBIN.Enabled = Type() == NewFileType::DataLog;
  txtFileName.Text = NameOfType(txtFileName.Text(), ExtensionOf(Type()));
}

bool frmNewDownload::ValidateName() {
  txtFileName.Text = FileTitle(txtFileName.Text());
  if (!IsLegalFileName(txtFileName.Text())) {
    world_.messages.ShowMessage(Message::IllegalFileName);
    txtFileName.SetFocus();
    return false;
  }
  txtFileName.Text = NameOfType(txtFileName.Text(), ExtensionOf(Type()));
  return true;
}

void frmNewDownload::cmdOK_Click() {
  if (!ValidateName()) return;
  if (txtFileName.Text().empty()) {
    world_.messages.Tell(
        "That's an interesting file name.  However, something more practical is required.",
        kBoxInformation);
    txtFileName.SetFocus();
    return;
  }
  if (!MayWrite(world_,
                AddBackslash(world_.settings.gstrDefaultWorkingDirectory) + txtFileName.Text())) {
    txtFileName.SetFocus();
    return;
  }
  Accept();
}

}  // namespace tarnview
