#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/FileSystem.h"

namespace tarnview {

/// Files that make room for the results of a run, and come back where the run does not begin.
class SetAside {
 public:
  explicit SetAside(FileSystem& files) : files_(&files) {}

  /// Deletes a file, if it is there, and remembers it.
  void Take(const std::string& path);
  void PutBack();

 private:
  FileSystem* files_;
  std::vector<std::pair<std::string, FileBytes>> kept_;
};

}  // namespace tarnview
