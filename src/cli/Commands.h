#pragma once

#include <CLI/CLI.hpp>
#include <functional>

namespace tarnview {

/// Exit statuses: done; the file did not load or the thing could not be made; the command line is
/// wrong.
enum ExitStatus : int { kDone = 0, kFailed = 1, kWrongCommandLine = 2 };

// Each adds a command with its options to the program; `status` gets what the command's run ends
// with.

void AddLoadCommand(CLI::App& program, int& status);
void AddTableCommand(CLI::App& program, int& status);
void AddExportCommand(CLI::App& program, int& status);
void AddGraphCommand(CLI::App& program, int& status);
void AddScatterCommand(CLI::App& program, int& status);
void AddPowerCommand(CLI::App& program, int& status);
void AddZonesCommand(CLI::App& program, int& status);
void AddDefinitionCommand(CLI::App& program, int& status);
void AddSettingsCommand(CLI::App& program, int& status);
void AddOptionsCommand(CLI::App& program, int& status);
void AddUploadCommand(CLI::App& program, int& status);
void AddShapeCommand(CLI::App& program, int& status);
void AddDriveCommand(CLI::App& program, int& status);

/// Runs the command line; the exit status. (arguments as of main)
int RunCommandLine(int count, const char* const* arguments);

}  // namespace tarnview
