#include <memory>

#include "cli/Commands.h"
#include "cli/LogSession.h"

namespace tarnview {
namespace {

struct ExportOptions : LogOptions {
  std::string out;
};

/// Chooses File / Export in the window and answers its dialog.
int Export(const ExportOptions& options) {
  LogSession session(options);
  if (!session.Open() || !session.Log().gblnSamplesLoaded) return kFailed;
  frmDataLogViewer& window = session.Window();
  if (!options.items.empty()) window.Details().SetCheckedItems(session.Items(false));
  window.chkShowCheckedOnly.Value = !options.items.empty();
  session.EnterRange();
  session.Host().nextFile = Answer{Answer::Kind::File, options.out, 0, 0};
  window.mnuFileExport.Do({"click", {}});
  if (window.Exported()) return kDone;
  return kFailed;
}

}  // namespace

void AddExportCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("export", "Writes the samples of a log as File / Export does");
  command->footer(
      "Example:\n  tarnview-cli export run.txt run.csv --items 3,5,20 --from 100 --to 200");
  auto options = std::make_shared<ExportOptions>();
  options->AddTo(*command);
  command->add_option("OUT", options->out, "The file to write")->required();
  command->callback([options, &status] { status = Export(*options); });
}

}  // namespace tarnview
