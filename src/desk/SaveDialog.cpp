#include "desk/SaveDialog.h"

#include "desk/Messages.h"

namespace tarnview {

bool ChooseFileToSave(Host& host, Dialog& dialog, const std::function<void(Dialog&)>& complete) {
  dialog.kind = DialogKind::Save;
  while (host.Choose(dialog)) {
    if (complete) complete(dialog);
    const std::string why = host.WhyNotSave ? host.WhyNotSave(dialog.path) : "";
    if (why.empty()) return true;
    host.Ask({0, why + "\r\n" + dialog.path + "\r\n\r\nPlease choose another name.",
              kBoxExclamation, kApplicationTitle});
    dialog.initialPath = dialog.path;
  }
  return false;
}

}  // namespace tarnview
