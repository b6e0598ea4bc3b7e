#include "ecu/ExitCodes.h"

namespace tarnview {
namespace {

struct ExitCode {
  int code;
  const char* text;
};

// As the programs' own documentation words them, "loadtimed" included.
constexpr ExitCode kExitCodes[] = {
    {kNormalExit, "Normal exit."},
    {-1, "Stop/Resume log data output command NAK'd."},
    {-2, "Response to Stop/Resume log data output command timed out."},
    {-3, "Unrecognized response to Stop/Resume log data output command."},
    {-7, "Store command NAK'd."},
    {-8, "Response to Store command timed out."},
    {-9, "Unrecognized response to Store command."},
    {-10, "Response to Test communications readiness command for Store timed out."},
    {-11, "Unrecognized response to Test communications readiness command for Store."},
    {-12, "Error writing to data log output file."},
    {-13, "Error writing to zone map output file."},
    {-14, "Error opening zone map input file."},
    {-15, "RZONE mismatch loading zone map input file."},
    {-16, "RDATA mismatch loading zone map input file."},
    {-17, "Modify command for map file load NAK'd."},
    {-18, "Response to Modify command for map file loadtimed out."},
    {-19, "Unrecognized response to Modify command for map file load."},
    {-20, "Error reading zone map input file."},
    {-21, "Command line option error."},
    {-22, "Error opening comm port."},
    {-23, "Error opening data log output file."},
    {-24, "Error opening zone map output file."},
    {-25, "Zone map verification failed."},
    {-26, "Zone map load aborted because engine was running."},
    {-27, "Invalid autotune mode specified."},
    {-28, "Autotune command NAK'd."},
    {-29, "Response to Autotune command timed out."},
    {-30, "Unrecognized response to Autotune command."},
    {-31, "Default map load aborted because engine was running."},
    {-32, "Invalid default map specified."},
    {-33, "Response to Modify command for Reload timed out."},
    {-34, "Unrecognized response to Modify command for Reload."},
    {-35, "Reload command NAK'd."},
    {-36, "Response to Reload command timed out."},
    {-37, "Unrecognized response to Reload command."},
    // -38 is none of theirs.
    {-39, "Unrecognized response to Test communications readiness command for Reload."},
};

const char* TextOf(int code) {
  for (const ExitCode& row : kExitCodes)
    if (row.code == code) return row.text;
  return "Unknown Error";
}

}  // namespace

std::string ExitCodeText(int code) {
  return std::string(TextOf(code)) + ", " + std::to_string(code);
}

}  // namespace tarnview
