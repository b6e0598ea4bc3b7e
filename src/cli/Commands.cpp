#include "cli/Commands.h"

#include <iostream>

#include "app/Version.h"

namespace tarnview {

int RunCommandLine(int count, const char* const* arguments) {
  CLI::App program("Does what Tarnview's windows do, with no display: loads, prints and draws data logs.");
  program.name("tarnview-cli");
  program.set_version_flag("--version", kVersion);
  program.require_subcommand(1);
  program.footer("Example:\n  tarnview-cli graph run.txt --items 3,5,20 --out run.png");
  int status = kDone;
  for (const auto add : {AddLoadCommand, AddTableCommand, AddExportCommand, AddGraphCommand, AddScatterCommand,
                         AddPowerCommand, AddDefinitionCommand, AddSettingsCommand, AddDriveCommand})
    add(program, status);
  try {
    program.parse(count, arguments);
  } catch (const CLI::ParseError& error) {
    return program.exit(error, std::cout, std::cerr) == 0 ? kDone : kWrongCommandLine;
  }
  return status;
}

}  // namespace tarnview
