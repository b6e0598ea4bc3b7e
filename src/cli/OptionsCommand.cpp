#include <memory>

#include "app/Program.h"
#include "base/Text.h"
#include "cli/Commands.h"
#include "cli/ConsoleHost.h"
#include "cli/Json.h"
#include "model/GeneralSettings.h"

namespace tarnview {
namespace {

constexpr std::string_view kOptionsWindow = "frmOptions/";

/// The page of the Options window; "" for a setting that is set elsewhere, or by the program alone.
std::string PageOf(const SettingRow& row) {
  const std::string_view window = row.setIn.window;
  if (window.starts_with(kOptionsWindow)) return std::string(window.substr(kOptionsWindow.size()));
  return "";
}

/// The control by which it is set, "frmOptions/txtSampleWidth"; "" for none.
std::string ControlOf(const SettingRow& row) {
  const std::string_view window = row.setIn.window;
  if (window.empty()) return "";
  return std::string(window.substr(0, window.find('/'))) + "/" + row.setIn.control;
}

/// Starts the program with a settings file and lists what it holds.
int ListOptions(const std::string& settingsFile) {
  ConsoleHost host;
  RealFileSystem files;
  RealClock clock;
  RealProcesses processes;
  Program program(host, files, clock, processes, {}, settingsFile);
  program.Start("", false);
  const Settings& settings = program.Global().settings;
  const Settings defaults;
  Json all = Json::array();
  for (const SettingRow& row : AllSettings())
    all.push_back({{"key", row.key},
                   {"section", row.section},
                   {"value", ShownAsUtf8(row.text(settings))},
                   {"default", ShownAsUtf8(row.text(defaults))},
                   {"limits", row.limits},
                   {"page", PageOf(row)},
                   {"control", ControlOf(row)}});
  Print({{"options", std::move(all)}});
  return kDone;
}

}  // namespace

void AddOptionsCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("options", "Lists each setting with its value, default and limits");
  command->footer("Example:\n  tarnview-cli options --settings Tarnview.ini");
  auto settings = std::make_shared<std::string>();
  command
      ->add_option("--settings", *settings,
                   "Read this Tarnview.ini; without it, every setting has its default")
      ->check(CLI::ExistingFile);
  auto json = std::make_shared<bool>();
  command->add_flag("--json", *json, "As JSON, which is the only form that it has");
  command->callback([settings, json, &status] { status = ListOptions(*settings); });
}

}  // namespace tarnview
