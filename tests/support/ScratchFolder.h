#pragma once

#include <filesystem>
#include <random>
#include <string>

#include "support/Accept.h"

namespace tarnview {

/// A folder of a test's own, gone behind it. A run that was stopped, or one beside it, has another.
class ScratchFolder {
 public:
  ScratchFolder() { std::filesystem::create_directories(path); }
  ~ScratchFolder() { std::filesystem::remove_all(path); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::string Path(const std::string& name) const { return (path / name).string(); }
  void Put(const std::string& name, const std::string& text) const {
    std::ofstream(path / name, std::ios::binary) << text;
  }
  std::string Get(const std::string& name) const { return FileText(Path(name)); }

  const std::filesystem::path path = std::filesystem::temp_directory_path() /
                                     ("tarnview test " + std::to_string(std::random_device()()));
};

}  // namespace tarnview
