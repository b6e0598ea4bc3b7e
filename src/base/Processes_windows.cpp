#include <shellapi.h>
#include <windows.h>

#include <cstdint>

#include "base/Processes.h"

namespace tarnview {

int RealProcesses::Run(const std::string& command) {
  constexpr int kNotStarted = -1000;
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  std::string line = command;  // the call writes into it
  if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, NORMAL_PRIORITY_CLASS, nullptr, nullptr, &start,
                      &process))
    return kNotStarted;
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 0;
  const bool known = GetExitCodeProcess(process.hProcess, &code) != 0;
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return known ? static_cast<int>(code) : kNotStarted;
}

int RealProcesses::Open(const std::string& path) {
  const HINSTANCE code = ShellExecuteA(GetDesktopWindow(), "Open", path.c_str(), nullptr, "C:\\", SW_SHOWNORMAL);
  return static_cast<int>(reinterpret_cast<std::intptr_t>(code));
}

}  // namespace tarnview
