#pragma once

#include <exception>
#include <string>
#include <utility>

#include "base/Clock.h"
#include "base/FileSystem.h"
#include "base/RuntimeError.h"

namespace tarnview {

/// "error.log" in the program's folder, started anew at each start. A log that cannot be written is
/// given up in silence: it must never stand in the way of the program.
class ErrorLog {
 public:
  /// An empty path writes nothing.
  ErrorLog(FileSystem& files, Clock& clock, std::string path);

  /// Not while another running program has it: both then write into one.
  void ResetErrorLog();

  /// Appends an entry. With `reraise` the error goes on to the caller's handler, which logs its own
  /// entry; the outermost handler, without it, ends the entries of one failure with a rule.
  void LogError(const std::string& module, const std::string& procedure, const RuntimeError& error,
                bool reraise);

 private:
  FileSystem& files_;
  Clock& clock_;
  std::string path_;
};

/// Runs a user's action: a failure is logged and ends here. True if there was none. Want of memory
/// goes on to where events end, where the user is told.
template <class Body>
bool TrapEvent(ErrorLog& log, const char* module, const char* procedure, Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const std::bad_alloc& error) {
    log.LogError(module, procedure, AsRuntimeError(error), true);
    throw;
  } catch (const std::exception& error) {
    log.LogError(module, procedure, AsRuntimeError(error), false);
  }
  return false;
}

}  // namespace tarnview
