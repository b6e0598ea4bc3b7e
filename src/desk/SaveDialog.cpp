#include "desk/SaveDialog.h"

#include "desk/Messages.h"

namespace tarnview {

bool MaySaveTo(Host& host, const Dialog& chosen) {
  std::string why;
  if (host.WhyNotSave) why = host.WhyNotSave(chosen);
  if (why.empty()) return true;
  host.Ask({0, why + "\r\n" + chosen.path + "\r\n\r\nPlease choose another name.", kBoxExclamation,
            kApplicationTitle});
  return false;
}

bool ChooseFileToSave(Host& host, Dialog& dialog, const std::function<void(Dialog&)>& complete) {
  dialog.kind = DialogKind::Save;
  while (host.Choose(dialog)) {
    if (complete) complete(dialog);
    if (MaySaveTo(host, dialog)) return true;
    dialog.initialPath = dialog.path;
  }
  return false;
}

}  // namespace tarnview
