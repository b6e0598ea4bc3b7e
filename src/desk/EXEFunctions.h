#pragma once

#include <string>

#include "base/Processes.h"
#include "ui/Host.h"

namespace tarnview {

/// Outside programs, with a word to the user where a document does not open.
class EXEFunctions {
 public:
  EXEFunctions(Processes& processes, Host& host) : processes_(processes), host_(host) {}

  /// Runs a program in a folder and waits with no time limit, until the user wants to wait no
  /// longer. Meanwhile the windows are drawn and take no input.
  RunResult RunAndWait(const ProgramCall& call, const std::string& folder);
  /// Whether a program that the user stopped waiting for is still at work.
  bool IsAnyLeftAlone() { return processes_.IsAnyLeftAlone(); }
  /// Opens a document; a failure (a code below 33) is told in a box.
  int ShellOpen(const std::string& path);

 private:
  Processes& processes_;
  Host& host_;
};

}  // namespace tarnview
