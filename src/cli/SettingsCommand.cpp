#include <algorithm>
#include <memory>

#include "app/Program.h"
#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/ConsoleHost.h"
#include "cli/Json.h"
#include "model/GeneralSettings.h"

namespace tarnview {
namespace {

struct SettingsOptions {
  std::string in, out;
};

/// The placements by the names of their windows.
Json PlacementsJson(const WindowPlacements& windows) {
  Json all = Json::object();
  for (const NamedPlacement& row : AllPlacements()) {
    const auto& config = windows.*row.window;
    if (!config) continue;
    std::string name = row.prefix;
    if (!name.empty()) name.pop_back();
    all[OrElse(name, "Main")] = {{"state", config->lngWindowState},
                                 {"left", config->lngLeft},
                                 {"top", config->lngTop},
                                 {"width", config->lngWidth},
                                 {"height", config->lngHeight}};
  }
  return all;
}

/// Starts the program with a settings file and closes its window again.
int ConvertSettings(const SettingsOptions& options) {
  ConsoleHost host;
  RealFileSystem files;
  RealClock clock;
  RealProcesses processes;
  Program program(host, files, clock, processes, {}, options.in);
  program.WriteSettingsTo(options.out);
  program.Start("", false);
  program.MainWindow().Unload();
  Json recent = Json::array();
  for (const std::string& entry : program.Global().settings.recentFiles)
    recent.push_back(ShownAsUtf8(entry));
  Print({{"messages", MessagesJson(host.messages)},
         {"window_placements", PlacementsJson(program.Global().settings.windows)},
         {"recent", std::move(recent)}});
  const auto failed = [](const Box& box) {
    return box.id == static_cast<int>(Message::SettingsNotWritten);
  };
  const bool written = std::none_of(host.messages.begin(), host.messages.end(), failed);
  if (written && !program.Global().gstrINIFileToWrite.empty()) return kDone;
  return kFailed;
}

}  // namespace

void AddSettingsCommand(CLI::App& program, int& status) {
  CLI::App* command = program.add_subcommand(
      "settings", "Reads a Tarnview.ini as a start does, writes it as an end does");
  command->footer("Example:\n  tarnview-cli settings Tarnview.ini checked.ini");
  auto options = std::make_shared<SettingsOptions>();
  command->add_option("IN.ini", options->in, "The settings file to read")
      ->required()
      ->check(CLI::ExistingFile);
  command->add_option("OUT.ini", options->out, "The settings file to write")->required();
  command->callback([options, &status] { status = ConvertSettings(*options); });
}

}  // namespace tarnview
