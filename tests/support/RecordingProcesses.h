#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "base/Processes.h"

namespace tarnview {

/// Starts nothing: remembers the command lines and answers with the codes of a script.
class RecordingProcesses : public Processes {
 public:
  std::vector<std::string> commands;
  std::vector<std::string> opened;
  std::deque<int> exitCodes;  ///< of the next runs; 0 when none is left
  int openCode = 33;          ///< below 33: the document could not be opened
  /// What the program does before it ends, such as writing its files.
  std::function<void(const std::string& command)> whileRunning;

  int Run(const std::string& command) override {
    commands.push_back(command);
    if (whileRunning) whileRunning(command);
    if (exitCodes.empty()) return 0;
    const int code = exitCodes.front();
    exitCodes.pop_front();
    return code;
  }
  int Open(const std::string& path) override {
    opened.push_back(path);
    return openCode;
  }
};

}  // namespace tarnview
