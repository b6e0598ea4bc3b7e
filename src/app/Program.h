#pragma once

#include <memory>
#include <string>

#include "app/Globals.h"
#include "app/SettingsFile.h"
#include "app/frmDataLogViewer.h"
#include "app/frmSplash.h"
#include "desk/Help.h"

namespace tarnview {

/// Where the program lies, each with a separator at its end; empty: it has none (tests, the command
/// line).
struct ProgramFolders {
  std::string program;  ///< for Tarnview.ini and error.log
  std::string data;     ///< what is installed beside the program
  std::string logs =
      {};  ///< the user's documents, where `program` is a hidden folder of the user's own
};

/// The whole program, in front of any desktop: it makes what lives for the run and brings the
/// windows up.
class Program {
 public:
  /// `settingsFile` stands for the program folder's Tarnview.ini; empty with no program folder:
  /// every default.
  Program(Host& host, FileSystem& files, Clock& clock, Processes& processes, ProgramFolders folders,
          std::string settingsFile = "");
  ~Program();

  /// The definition of Universal logs, in place of the one that the settings name; before Start.
  void UseDefinition(std::string path) { definitionFile_ = std::move(path); }

  /// Where the settings go when the main window closes; before Start. Without it, a program with a
  /// folder keeps them there, and one without a folder nowhere.
  void WriteSettingsTo(std::string path) { globals_.gstrINIFileToWrite = std::move(path); }

  /// Brings up the splash (where wanted) and the main window, and opens the file that the command
  /// line names. With the splash, a program that has no settings file yet asks for one first; if
  /// the user cancels that, no window stays.
  void Start(const std::string& commandLine, bool splash);

  Globals& Global() { return globals_; }
  const Globals& Global() const { return globals_; }
  frmDataLogViewer& MainWindow() { return *main_; }
  void TellMessage(Message id) { messages_.ShowMessage(id); }

 private:
  bool HasINIFile();
  std::string WhyNotSave(const Dialog& chosen) const;
  void FindInstallINIFile();
  void FindDefinition();
  void TellFolderTroubles();
  void LoadMainForm(const std::string& commandLine);
  void EventFailed(const std::string& module, const std::string& procedure,
                   const std::exception& error);

  Host& host_;
  FileSystem& files_;
  ProgramFolders folders_;
  std::string definitionFile_;
  Globals globals_;
  ErrorLog errors_;
  Messages messages_;
  EXEFunctions programs_;
  Help help_;
  Services services_;
  SettingsFile settingsFile_{globals_, services_};
  std::unique_ptr<frmSplash> splash_;
  std::unique_ptr<frmDataLogViewer> main_;
};

}  // namespace tarnview
