#include <unistd.h>

#include <cstdlib>

#include "base/Paths.h"
#include "base/ProgramFolder.h"

namespace tarnview {

std::string ProgramFolder() {
  char path[4096];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  if (length <= 0) return "";
  return GetParentFolder(std::string(path, static_cast<std::size_t>(length)));
}

std::string UserFolder() {
  if (const char* config = std::getenv("XDG_CONFIG_HOME"); config && *config)
    return std::string(config) + "/tarnview/";
  if (const char* home = std::getenv("HOME"); home && *home)
    return std::string(home) + "/.config/tarnview/";
  return "";
}

}  // namespace tarnview
