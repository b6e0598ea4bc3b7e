#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Program.h"
#include "cli/ConsoleHost.h"
#include "ui/Script.h"
#include "ui/ScriptUser.h"

namespace tarnview {

/// Outside programs of a script: run for real and remembered; documents are remembered only.
class ScriptProcesses : public RealProcesses {
 public:
  List commands;
  RunResult Run(const ProgramCall& call, const std::string& folder,
                const std::function<bool()>& keepWaiting) override;
  int Open(const std::string& path) override;
};

/// A script at the program's windows: what a user does, and what is to be told of it.
class Driver : private ConsoleHost {
 public:
  /// The settings that the main window leaves when it closes go to `writeSettings`; empty: nowhere.
  Driver(ScriptSource script, const std::string& settingsFile,
         const std::string& writeSettings = "");

  /// Runs the script to its end, which closes a main window whose settings are wanted; throws
  /// ScriptError for a line that cannot be done, in whatever window it stands. False: the settings
  /// could not be written.
  bool Run();

 private:
  using Words = ScriptUser::Words;
  struct Verb {
    const char* name;
    void (Driver::*run)(const Words& words);
  };
  static const std::vector<Verb>& Verbs();

  void RunModal(Form& form) override;
  /// Does the next line; false at the script's end.
  bool Step();
  /// Ends the script at the line that is being done. The windows that are open close one after the
  /// other, so no exception passes through them.
  void Fail(const std::string& why);
  void DoLine(const ScriptLine& line);
  void WorkControl(Words words);

  void OpenLogFile(const Words& words);
  int GuessedType(const std::string& path) const;
  void ShowFacts(const Words& words);
  void ShowChart(const Words& words);
  void ShowBoxes(const Words& words);
  void ShowRuns(const Words& words);

  ScriptUser user_{*this};
  ScriptSource script_;
  bool writesSettings_;
  int line_ = 0;  ///< that is being done
  int modalWindows_ = 0;
  std::optional<ScriptError> error_;
  RealFileSystem files_;
  RealClock clock_;
  ScriptProcesses processes_;
  Program program_;
};

}  // namespace tarnview
