#include <cstdio>
#include <iostream>
#include <memory>

#include "base/Text.h"
#include "base/TextFile.h"
#include "cli/Commands.h"
#include "cli/Driver.h"
#include "cli/Json.h"

namespace tarnview {
namespace {

struct DriveOptions {
  std::string script;
  std::string settings;
  std::string writeSettings;
};

int Drive(const DriveOptions& options) {
  try {
    ScriptSource script = FromStream(std::cin);
    if (options.script != "-") {
      RealFileSystem files;
      const auto text = ReadText(files, options.script);
      if (!text) {
        std::fprintf(stderr, "tarnview-cli: cannot read %s\n", options.script.c_str());
        return kWrongCommandLine;
      }
      script = FromLines(ParseScript(*text));
    }
    if (Driver(std::move(script), options.settings, options.writeSettings).Run()) return kDone;
    return kFailed;
  } catch (const ScriptError& error) {
    const Json out{{"error", ToUtf8(error.what())}, {"line", error.line}};
    std::fprintf(stderr, "%s\n", out.dump(-1, ' ', false, Json::error_handler_t::replace).c_str());
    return kFailed;
  }
}

}  // namespace

void AddDriveCommand(CLI::App& program, int& status) {
  CLI::App* command =
      program.add_subcommand("drive", "Works the windows by their controls' names, from a script");
  command->footer(
      "Example:\n  printf 'open run.txt\\nclick frmDataLogViewer/cmdDrawGraph\\n"
      "chart frmDataLogViewer/chSampleGraph\\n' | tarnview-cli drive -");
  auto options = std::make_shared<DriveOptions>();
  command->add_option("SCRIPT", options->script, "The script, or - for standard input")->required();
  command->add_option("--settings", options->settings, "Start with this Tarnview.ini")
      ->check(CLI::ExistingFile);
  command->add_option("--write-settings", options->writeSettings,
                      "Write the settings at the end to this file");
  command->callback([options, &status] { status = Drive(*options); });
}

}  // namespace tarnview
