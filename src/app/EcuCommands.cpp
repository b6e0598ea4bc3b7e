#include "app/EcuCommands.h"

#include <utility>

#include "ecu/frmConvertBIN.h"

namespace tarnview {
namespace {

EcuWorld WorldOf(Settings& settings, Services& services) {
  return {services.host,  settings,          services.files,
          services.clock, services.programs, services.messages};
}

}  // namespace

EcuCommands::EcuCommands(MainWindowControls& controls, Globals& globals, Services& services,
                         LogFiles& logFiles)
    : controls_(controls),
      globals_(globals),
      logFiles_(logFiles),
      world_(WorldOf(globals.settings, services)) {}

std::vector<Command> EcuCommands::Rows() {
  return {
      {&controls_.mnuFileNew, [this] { capture_.Run(); }, {}},
      {&controls_.mnuToolsConvert, [this] { mnuToolsConvert_Click(); }, {}},
  };
}

void EcuCommands::UploadZones(const ZonesToUpload& form, LoadZones loadComparison) {
  loadComparison_ = std::move(loadComparison);
  upload_.Run(form);
}

void EcuCommands::mnuToolsConvert_Click() {
  frmConvertBIN window(world_, globals_.log.gstrCurrentFile);
  window.ShowModal();
  if (window.TargetPath().empty() || !window.LoadIt()) return;
  if (!world_.files.FileExists(window.TargetPath())) {
    world_.messages.ShowMessage(Message::FileNotLoaded);
    return;
  }
  world_.host.DoEvents();
  if (logFiles_.SaveChangesPrompt()) logFiles_.LoadDataFile(window.TargetPath(), kFMLinkLog);
}

ComparisonChoices EcuCommands::ChoicesForComparison() {
  const clsFileTypes& types = globals_.kinds.gcolFileTypes;
  ComparisonChoices choices;
  choices.filter =
      types.Item(kFMLinkLog).CommonDialogFilter() + "|" + types.Item(kMAPFile).CommonDialogFilter();
  const RecentFiles& recent = logFiles_.Recent();
  for (int index = 0; index < recent.Count(); ++index) {
    const auto [fileType, path] = recent.At(index);
    if (fileType == kFMLinkLog || fileType == kMAPFile) choices.recentFiles.push_back(path);
  }
  return choices;
}

}  // namespace tarnview
