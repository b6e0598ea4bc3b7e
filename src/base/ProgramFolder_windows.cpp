#include <windows.h>

#include <cstdlib>

#include "base/Paths.h"
#include "base/ProgramFolder.h"

namespace tarnview {

std::string ProgramFolder() {
  char path[MAX_PATH];
  const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
  if (length == 0 || length == MAX_PATH) return "";
  return GetParentFolder(std::string(path, length));
}

std::string UserFolder() {
  const char* data = std::getenv("APPDATA");
  if (data && *data) return std::string(data) + "\\Tarnview\\";
  return "";
}

}  // namespace tarnview
