#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "base/ProgramCall.h"

namespace tarnview {

/// How the run of an outside program ended.
struct RunResult {
  enum class End { Exited, NotStarted, LeftAlone };

  End end = End::Exited;
  /// Of a program that ended. A POSIX status of 128 and up stands for the negative code: 255 is -1.
  int exitCode = 0;
  std::string trouble = {};  ///< why it was not started, in the system's own words

  bool Succeeded() const { return end == End::Exited && exitCode == 0; }
  friend bool operator==(const RunResult&, const RunResult&) = default;
};

/// Outside programs. The real form is in Processes_posix.cpp and Processes_windows.cpp.
class Processes {
 public:
  virtual ~Processes() = default;
  /// Runs a program in a folder (empty: the one that this program is in, which never moves) and
  /// waits for its end, however long that takes. Some fifty times a second it asks `keepWaiting`;
  /// on false the program is left alone.
  virtual RunResult Run(const ProgramCall& call, const std::string& folder,
                        const std::function<bool()>& keepWaiting) = 0;
  /// Whether a program that was left alone is still at work.
  virtual bool IsAnyLeftAlone() = 0;
  /// Opens a document with the desktop's program for it; a code below 33 is a failure.
  virtual int Open(const std::string& path) = 0;
};

class RealProcesses : public Processes {
 public:
  RunResult Run(const ProgramCall& call, const std::string& folder,
                const std::function<bool()>& keepWaiting) override;
  bool IsAnyLeftAlone() override;
  int Open(const std::string& path) override;

 private:
  std::vector<std::intptr_t> leftAlone_;  ///< ids or handles of processes that may have ended since
};

}  // namespace tarnview
