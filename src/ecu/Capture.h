#pragma once

#include <string>

#include "ecu/EcuWorld.h"
#include "ecu/NewFile.h"
#include "ecu/NewFileNames.h"
#include "ecu/SetAside.h"

namespace tarnview {

/// Captures a log or the zone settings from the ECU into a new file, and opens it.
class Capture {
 public:
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    /// False: the user does not want to lose edited zones.
    virtual bool SaveChangesPrompt() = 0;
    virtual void CloseDataLogFile() = 0;
    /// Opens a file as that type, with all that follows a load. False: the user was told.
    virtual bool LoadDataFile(const std::string& path, int fileType) = 0;
    /// Saves the zone settings that are open, as this program writes MAP files. False: nothing was
    /// written.
    virtual bool SaveMapFile(const std::string& path) = 0;
    virtual void Say(const std::string& status) = 0;
  };

  Capture(const EcuWorld& world, MainWindow& mainWindow) : world_(world), mainWindow_(mainWindow) {}

  /// Each failure ends the run and has been told.
  void Run();

 private:
  // The steps, in their order. False ends the run.
  bool MayLoseZones() { return mainWindow_.SaveChangesPrompt(); }
  bool HasPrograms();
  bool AskWhat();
  bool MakeRoom();
  bool CallLogger();
  bool FindCaptured();
  bool KeepBinary();
  bool TakeOver();
  bool Load();
  bool CountName();

  std::string TargetFolder() const;
  std::string Captured() const;
  bool LoadMap();
  bool CopyTo(const std::string& from, const std::string& to);

  EcuWorld world_;
  MainWindow& mainWindow_;
  AutoFileNames names_;
  NewFile file_;
  std::string target_;
  SetAside aside_{world_.files};
};

}  // namespace tarnview
