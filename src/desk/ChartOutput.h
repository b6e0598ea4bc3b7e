#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/ErrorLog.h"
#include "desk/Messages.h"
#include "ui/Chart.h"
#include "ui/Host.h"

namespace tarnview {

/// What stands above the picture on a printed page.
struct PrintDetails {
  std::string name;  ///< " Sample Graph", behind the program's title
  std::vector<std::pair<std::string, std::string>>
      rows;  ///< label and value; an empty label goes on with the last
};

/// What each window with a chart offers: the picture on the clipboard, on paper and in a file.
class ChartOutput {
 public:
  ChartOutput(Host& host, Messages& messages, ErrorLog& errors);

  void Copy(const Chart& chart);
  /// Asks for the printer first; a cancelled dialog ends it quietly.
  void Print(const Chart& chart, const PrintDetails& details);
  void PrintPreview(const Chart& chart, const PrintDetails& details);
  /// Asks for a file (.png, .svg, .pdf); what is offered is named after the log.
  void SavePictureAs(const Chart& chart, const std::string& strLogFile);

 private:
  PrintJob PageOf(const Chart& chart, const PrintDetails& details) const;
  /// Logs a failure and tells it; nothing for one without a reason, which the user made.
  void Fail(const char* procedure, const std::string& what, long number, const std::string& error);

  Host& host_;
  Messages& messages_;
  ErrorLog& errors_;
};

}  // namespace tarnview
