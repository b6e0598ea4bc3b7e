#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "base/Processes.h"

namespace tarnview {

/// Starts nothing: remembers the command lines and their folders, and answers with the codes of a
/// script. A program that the user does not wait for is left alone.
class RecordingProcesses : public Processes {
 public:
  std::vector<std::string> commands;
  std::vector<std::string> folders;
  std::vector<std::string> opened;
  std::deque<int> exitCodes;  ///< of the next runs; 0 when none is left
  std::string trouble;        ///< why nothing can be started; empty: it can
  bool anyLeftAlone = false;
  int openCode = 33;  ///< below 33: the document could not be opened
  /// What the program does before it ends, such as writing its files.
  std::function<void(const std::string& command)> whileRunning;

  RunResult Run(const ProgramCall& call, const std::string& folder,
                const std::function<bool()>& keepWaiting) override {
    commands.push_back(call.Text());
    folders.push_back(folder);
    if (!trouble.empty()) return {RunResult::End::NotStarted, 0, trouble};
    if (!keepWaiting()) {
      anyLeftAlone = true;
      return {RunResult::End::LeftAlone};
    }
    if (whileRunning) whileRunning(call.Text());
    if (exitCodes.empty()) return {};
    const int code = exitCodes.front();
    exitCodes.pop_front();
    return {RunResult::End::Exited, code};
  }
  bool IsAnyLeftAlone() override { return anyLeftAlone; }
  int Open(const std::string& path) override {
    opened.push_back(path);
    return openCode;
  }
};

}  // namespace tarnview
