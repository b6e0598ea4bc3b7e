#pragma once

#include <string>
#include <vector>

#include "ui/Host.h"

namespace tarnview {

/// Outside programs. The real form is in EXEFunctions_posix.cpp and EXEFunctions_windows.cpp.
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

class EXEFunctions {
 public:
  EXEFunctions(Processes& processes, Host& host) : processes_(processes), host_(host) {}

  /// Waits with no time limit; returns the program's exit code.
  int RunAndWait(const std::string& command) { return processes_.Run(command); }
  /// Opens a document; a failure (a code below 33) is told in a box.
  int ShellOpen(const std::string& path);

 private:
  Processes& processes_;
  Host& host_;
};

}  // namespace tarnview
