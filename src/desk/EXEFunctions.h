#pragma once

#include <string>

#include "base/Processes.h"
#include "ui/Host.h"

namespace tarnview {

/// Outside programs, with a word to the user where a document does not open.
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
