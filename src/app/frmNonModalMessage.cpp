#include "app/frmNonModalMessage.h"

#include "desk/Messages.h"

namespace tarnview {

frmNonModalMessage::frmNonModalMessage(Host& itsHost, std::function<void(int)> unloaded)
    : Form(itsHost, "frmNonModalMessage", kApplicationTitle), unloaded_(std::move(unloaded)) {
  txtMessage.MultiLine = true;
  txtMessage.ReadOnly = true;
  DefaultButton = CancelButton = &cmdClose;
  HelpTopic = "Troubles";
  cmdClose.Click = [this] { Unload(); };
}

void frmNonModalMessage::Form_Unload() {
  if (unloaded_) unloaded_(ID);
}

}  // namespace tarnview
