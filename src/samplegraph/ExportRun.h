#pragma once

#include <functional>
#include <string>

#include "base/ErrorLog.h"
#include "desk/Messages.h"
#include "desk/StatusArea.h"
#include "ui/Form.h"

namespace tarnview {

/// An export as the user sees it: the question where to, what goes on, how it ended.
struct ExportRun {
  Form& window;
  StatusArea& status;
  Messages& messages;
  ErrorLog& errors;
  const char* procedure;  ///< for the error log

  /// Offers `path`, which becomes what is chosen, and writes there. A failure shows message 64.
  /// True if it was written.
  bool Run(std::string& path, const std::function<void(const std::string& strFile)>& write) const;
};

}  // namespace tarnview
