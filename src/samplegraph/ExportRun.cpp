#include "samplegraph/ExportRun.h"

#include "base/Text.h"
#include "desk/SaveDialog.h"

namespace tarnview {

bool ExportRun::Run(std::string& path, const std::function<void(const std::string&)>& write) const {
  Dialog dialog{
      .title = "Export", .filter = "CSV files (*.csv)|*.csv", .initialPath = path, .path = path};
  if (!ChooseFileToSave(window.host, dialog)) return false;
  path = dialog.path;
  status.Say("Exporting...");
  const bool exported = TrapEvent(errors, window.name.c_str(), procedure, [&] {
    const AtWork work(window, status);
    write(path);
  });
  status.Say(TextIf(exported, "Export complete"));
  if (!exported) messages.ShowMessage(Message::ExportFailed);
  return exported;
}

}  // namespace tarnview
