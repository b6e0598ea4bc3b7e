#pragma once

#include <functional>
#include <initializer_list>
#include <vector>

#include "base/ErrorLog.h"
#include "ui/CommandButton.h"
#include "ui/MenuItem.h"

namespace tarnview {

/// One command of a window: the control that starts it, what it does, and when it may run. The
/// error log knows it by its control's name, "mnuFileSave_Click".
struct Command {
  Control* control;
  std::function<void()> run;     ///< empty: not there yet, the control stays disabled
  std::function<bool()> mayRun;  ///< empty: always
};

/// The rows of several lists as one.
std::vector<Command> Joined(std::initializer_list<std::vector<Command>> lists);

/// The commands of a window as one list. Handlers end errors in the error log; enabled states are
/// worked out in one place.
class Commands {
 public:
  Commands(ErrorLog& errors, const char* module) : errors_(errors), module_(module) {}

  /// Ties each control to its row.
  void Bind(std::vector<Command> rows);
  /// Asks each row whether it may run now.
  void Update();

 private:
  ErrorLog& errors_;
  const char* module_;
  std::vector<Command> rows_;
};

}  // namespace tarnview
