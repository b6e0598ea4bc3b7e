#include <windows.h>

#include "app/SystemInformation.h"

namespace tarnview {
namespace {

/// A text value under the machine's registry key; "" if it is not there.
std::string GetKeyValue(const char* key, const char* value) {
  HKEY opened = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key, 0, KEY_READ, &opened) != ERROR_SUCCESS) return "";
  char text[MAX_PATH] = {};
  DWORD size = sizeof text - 1;
  DWORD type = 0;
  const auto found =
      RegQueryValueExA(opened, value, nullptr, &type, reinterpret_cast<BYTE*>(text), &size);
  RegCloseKey(opened);
  if (found == ERROR_SUCCESS && type == REG_SZ) return std::string(text);
  return std::string();
}

}  // namespace

std::string SystemInformationTool() {
  const std::string path = GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH");
  if (!path.empty()) return path;
  const std::string folder = GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
  if (folder.empty()) return "";
  return folder + "\\MSINFO32.EXE";
}

}  // namespace tarnview
