#pragma once

#include <memory>
#include <string>

#include "app/Globals.h"
#include "app/frmDataLogViewer.h"
#include "app/frmSplash.h"

namespace tarnview {

/// Where the program lies, each with a separator at its end; empty: it has none (tests, the command line).
struct ProgramFolders {
  std::string program;  ///< for Tarnview.ini and error.log
  std::string data;     ///< what is installed beside the program
};

/// The whole program, in front of any desktop: it makes what lives for the run and brings the windows up.
class Program {
 public:
  /// `settingsFile` stands for the program folder's Tarnview.ini; empty with no program folder: every default.
  Program(Host& host, FileSystem& files, Clock& clock, Processes& processes, ProgramFolders folders,
          std::string settingsFile = "");

  /// Brings up the splash (where wanted) and the main window, and opens the file that the command line names.
  void Start(const std::string& commandLine, bool splash);

  Globals& Global() { return globals_; }
  frmDataLogViewer& MainWindow() { return *main_; }

 private:
  void LoadINIFileNew();
  void TellFolderTroubles();
  void LoadMainForm(const std::string& commandLine);

  Host& host_;
  FileSystem& files_;
  ProgramFolders folders_;
  Globals globals_;
  ErrorLog errors_;
  Messages messages_;
  EXEFunctions programs_;
  Help help_;
  Services services_;
  std::unique_ptr<frmSplash> splash_;
  std::unique_ptr<frmDataLogViewer> main_;
};

}  // namespace tarnview
