#pragma once

#include <string>

namespace tarnview {

/// Outside programs. The real form is in Processes_posix.cpp and Processes_windows.cpp.
class Processes {
 public:
  virtual ~Processes() = default;
  /// Runs a command line to its end; its exit code (a POSIX status of 128 and up stands for the negative code: 255 is
  /// -1), or -1000 when it could not be started.
  virtual int Run(const std::string& command) = 0;
  /// Opens a document with the desktop's program for it; a code below 33 is a failure.
  virtual int Open(const std::string& path) = 0;
};

class RealProcesses : public Processes {
 public:
  int Run(const std::string& command) override;
  int Open(const std::string& path) override;
};

}  // namespace tarnview
