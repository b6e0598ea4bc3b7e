#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/DefinitionInUse.h"
#include "app/Globals.h"
#include "app/LogLoading.h"
#include "app/LogRoads.h"
#include "app/MainWindowControls.h"
#include "app/MapSaving.h"
#include "app/RecentFiles.h"
#include "desk/Commands.h"
#include "desk/StatusArea.h"
#include "ecu/Capture.h"

namespace tarnview {

/// The files of the program: choosing and opening one, the recent list, saving, and the question
/// before edited zones are lost.
class LogFiles : public Capture::MainWindow {
 public:
  /// What they need of the main window.
  struct SampleGraphWindow {
    virtual ~SampleGraphWindow() = default;
    /// Nothing of the log that is open is shown any more.
    virtual void HideForLoad() = 0;
    /// A log or map is open: range, list and captions are set up.
    virtual void LoadDatalogFileSuccess(int fileType) = 0;
    /// The user has been told that it is: what is to be drawn without a command.
    virtual void DrawAfterOpening(int fileType) = 0;
    virtual void FileRenamed() = 0;
  };
  LogFiles(MainWindowControls& controls, Globals& globals, Services& services, StatusArea& status,
           SampleGraphWindow& mainWindow);

  std::vector<Command> Rows();
  const RecentFiles& Recent() const { return recent_; }

  /// Opens a file; type 0 is guessed. False: nothing was loaded, and the user was told why.
  bool LoadDataFile(const std::string& path, int fileType) override;
  /// Opens a file as the user does: what does not load as `fileType` (0: guessed) is looked at, and
  /// opened as what it looks like after a question. Where the kind was guessed and nothing loads,
  /// the open log stays.
  bool OpenFile(const std::string& path, int fileType);
  /// Opens a file as what its content is, with no question; what is no log as its extension says.
  bool OpenByContent(const std::string& path);
  /// Opens an entry of the recent list; a `path` is entered first, on top.
  bool OpenRecentlyUsedFile(int index, const std::string& path = "", int fileType = 0);
  /// Opens the file that a start names. False: it names none, or none was loaded.
  bool OpenFromCommandLine(const std::string& commandLine);
  bool SaveChangesPrompt() override { return saving_.SaveChangesPrompt(); }
  void CloseDataLogFile() override;

  /// The tables for auxiliary and oxygen inputs, as the settings name them now.
  void LoadConversionFiles() { loading_.LoadConversionFiles(); }
  /// Fills the recent list as the settings have it.
  void TakeRecentFiles();

 private:
  bool SaveMapFile(const std::string& path) override;
  void Say(const std::string& status) override { status_.Say(status); }

  void mnuFileOpen_Click();
  void mnuFileNewLogDescription_Click();
  void mnuFileEditDefinition_Click();
  Dialog OpenDialog() const;
  int Guessed(const std::string& path) const;
  /// Of the file to load, where it has been read.
  using Bytes = std::optional<FileBytes>;
  bool LoadAsSettings(const std::string& path, int fileType, Bytes bytes);
  bool LoadNow(const std::string& path, int fileType, Bytes bytes);

  // What a file is opened as.
  enum class Agreed { No, Yes, Otherwise };  ///< the last: the user wants to describe the log
  Agreed AgreesTo(const LogRoad& road, const std::string& path, int chosenType);
  bool SettleRate(LogRoad& road);
  bool LoadAs(const std::string& path, LogRoad road, Bytes bytes);
  bool DescribeLog(const std::string& path);
  void EditDefinition(const std::string& file, const clsDataLog& definition,
                      const std::string& log);
  std::string KeepDefinition(const std::string& file, const clsDataLog& definition);
  bool TellNothingLoads(const std::string& path, const LoadOutcome& outcome);

  MainWindowControls& controls_;
  Globals& globals_;
  Services& services_;
  StatusArea& status_;
  SampleGraphWindow& mainWindow_;
  RecentFiles recent_{controls_.mnuRecentlyUsed, controls_.mnuSepRecentlyUsed};
  MapSaving saving_;
  DefinitionInUse definition_{globals_, services_};
  LogLoading loading_{globals_, services_, status_, definition_, saving_};
  LogRoads roads_{globals_, services_.files};
};

}  // namespace tarnview
