#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

#include "app/Program.h"
#include "cli/ConsoleHost.h"

namespace tarnview {

/// The options of every command that opens a log.
struct LogOptions {
  std::string log;
  std::string fileType;  ///< "1" to "8", "auto"; empty: guessed
  std::string settings;
  std::string definition;
  std::optional<std::string> from, to;
  std::string items;

  void AddTo(CLI::App& command);
  /// All but `--to`, for a command that has a use of its own for it.
  void AddOpeningTo(CLI::App& command, const char* name, const char* description);
};

/// A check of Sample numbers, as a user would type them.
std::string CheckNumber(const std::string& text);

/// The folder of what is installed, with a separator at its end; "" if it is not there.
std::string DataFolder(FileSystem& files);

/// The program with one log opened in it, as the main window opens it.
class LogSession {
 public:
  explicit LogSession(const LogOptions& options);

  /// Opens the log; false if nothing was loaded.
  bool Open();
  /// Types the range into the boxes and leaves them.
  void EnterRange();

  /// The item numbers of --items; every item for "all" and, with `allByDefault`, without the
  /// option.
  std::vector<int> Items(bool allByDefault) const;
  bool HasRange() const { return options_.from || options_.to; }

  frmDataLogViewer& Window() { return program_.MainWindow(); }
  void TellMessage(Message id) { program_.TellMessage(id); }
  Globals& Global() { return program_.Global(); }
  const OpenLog& Log() { return program_.Global().log; }
  ConsoleHost& Host() { return host_; }

 private:
  LogOptions options_;
  ConsoleHost host_;
  RealFileSystem files_;
  RealClock clock_;
  RealProcesses processes_;
  Program program_;
};

}  // namespace tarnview
