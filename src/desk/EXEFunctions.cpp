#include "desk/EXEFunctions.h"

#include <utility>

#include "base/Paths.h"
#include "desk/Messages.h"

namespace tarnview {
namespace {

/// Codes of the desktop's "open" from here on up are no failures.
constexpr int kFirstGoodCode = 33;

constexpr std::pair<int, const char*> kOpenFailures[] = {
    {2, "File not found"},
    {3, "Path not found"},
    {5, "Access denied"},
    {8, "Out of memory"},
    {11, "Invalid EXE file or error in EXE image"},
    {26, "A sharing violation occurred"},
    {27, "Incomplete or invalid file association"},
    {28, "DDE Time out"},
    {29, "DDE transaction failed"},
    {30, "DDE busy"},
    {31, "No association for file extension"},
    {32, "DLL not found"},
};

const char* FailureText(int code) {
  for (const auto& [failure, text] : kOpenFailures)
    if (failure == code) return text;
  return "Unknown error";
}

}  // namespace

RunResult EXEFunctions::RunAndWait(const ProgramCall& call, const std::string& folder) {
  const auto waiting = host_.Wait(FileTitle(call.program));
  return processes_.Run(call, folder, [&waiting] { return waiting->GoOn(); });
}

int EXEFunctions::ShellOpen(const std::string& path) {
  const int code = processes_.Open(path);
  if (code < kFirstGoodCode) host_.Ask({0, FailureText(code), kBoxOk, kApplicationTitle});
  return code;
}

}  // namespace tarnview
