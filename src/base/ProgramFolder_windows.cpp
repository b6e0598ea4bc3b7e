#include <windows.h>

#include <cstdlib>

#include "base/Paths.h"
#include "base/ProgramFolder.h"

namespace tarnview {

std::string ProgramFolder() {
  char path[MAX_PATH];
  const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
  return length == 0 || length == MAX_PATH ? "" : GetParentFolder(std::string(path, length));
}

std::string UserFolder() {
  const char* data = std::getenv("APPDATA");
  return data && *data ? std::string(data) + "\\Tarnview\\" : "";
}

}  // namespace tarnview
