#include "cli/Commands.h"

#include <cstdio>
#include <iostream>

#include "app/Version.h"

namespace tarnview {
namespace {

/// Whether all of the result could be written; a full disk or a closed pipe is told.
bool Printed() {
  std::cout.flush();
  if (std::cout && std::fflush(stdout) == 0 && !std::ferror(stdout)) return true;
  std::fprintf(stderr, "tarnview-cli: standard output cannot be written\n");
  return false;
}

}  // namespace

int RunCommandLine(int count, const char* const* arguments) {
  CLI::App program(
      "Does what Tarnview's windows do, with no display: loads, prints and draws data logs.");
  program.name("tarnview-cli");
  program.set_version_flag("--version", kVersion);
  program.require_subcommand(1);
  program.footer("Example:\n  tarnview-cli graph run.txt --items 3,5,20 --out run.png");
  int status = kDone;
  for (const auto add :
       {AddLoadCommand, AddTableCommand, AddExportCommand, AddGraphCommand, AddScatterCommand,
        AddPowerCommand, AddZonesCommand, AddDefinitionCommand, AddSettingsCommand, AddShapeCommand,
        AddOptionsCommand, AddUploadCommand, AddDriveCommand})
    add(program, status);
  try {
    program.parse(count, arguments);
  } catch (const CLI::ParseError& error) {
    if (program.exit(error, std::cout, std::cerr) == 0)
      status = kDone;
    else
      status = kWrongCommandLine;
  }
  if (Printed()) return status;
  return kFailed;
}

}  // namespace tarnview
