#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

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
  std::string Get(const std::string& name) const {
    std::ostringstream text;
    text << std::ifstream(path / name, std::ios::binary).rdbuf();
    return text.str();
  }

  const std::filesystem::path path = std::filesystem::temp_directory_path() /
                                     ("tarnview test " + std::to_string(std::random_device()()));
};

}  // namespace tarnview
