#include <shellapi.h>
#include <windows.h>

#include <cstdint>
#include <string>

#include "base/Processes.h"

namespace tarnview {
namespace {

/// The system's own words for an error.
std::string WordsFor(DWORD error) {
  char text[512];
  const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                      nullptr, error, 0, text, sizeof text, nullptr);
  std::string words(text, length);
  while (!words.empty() && static_cast<unsigned char>(words.back()) <= ' ') words.pop_back();
  if (words.empty()) return "Error " + std::to_string(error);
  return words;
}

bool HasEnded(HANDLE process, DWORD milliseconds) {
  return WaitForSingleObject(process, milliseconds) != WAIT_TIMEOUT;
}

int ExitCodeOf(HANDLE process) {
  DWORD code = 0;
  GetExitCodeProcess(process, &code);
  CloseHandle(process);
  return static_cast<int>(code);
}

}  // namespace

RunResult RealProcesses::Run(const ProgramCall& call, const std::string& folder,
                             const std::function<bool()>& keepWaiting) {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  std::string line = call.Text();  // the call writes into it
  // The program is named apart, so that its path needs no quotes in the line.
  if (!CreateProcessA(call.program.c_str(), line.data(), nullptr, nullptr, TRUE,
                      NORMAL_PRIORITY_CLASS, nullptr, folder.empty() ? nullptr : folder.c_str(),
                      &start, &process))
    return {RunResult::End::NotStarted, 0, WordsFor(GetLastError())};
  CloseHandle(process.hThread);

  constexpr DWORD kNap = 20;  // milliseconds
  while (!HasEnded(process.hProcess, kNap)) {
    if (keepWaiting()) continue;
    leftAlone_.push_back(reinterpret_cast<std::intptr_t>(process.hProcess));
    return {RunResult::End::LeftAlone};
  }
  return {RunResult::End::Exited, ExitCodeOf(process.hProcess)};
}

bool RealProcesses::IsAnyLeftAlone() {
  std::erase_if(leftAlone_, [](std::intptr_t handle) {
    const auto process = reinterpret_cast<HANDLE>(handle);
    if (!HasEnded(process, 0)) return false;
    CloseHandle(process);
    return true;
  });
  return !leftAlone_.empty();
}

int RealProcesses::Open(const std::string& path) {
  const HINSTANCE code =
      ShellExecuteA(GetDesktopWindow(), "Open", path.c_str(), nullptr, "C:\\", SW_SHOWNORMAL);
  return static_cast<int>(reinterpret_cast<std::intptr_t>(code));
}

}  // namespace tarnview
