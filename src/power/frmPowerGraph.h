#pragma once

#include <optional>
#include <string>

#include "base/Clock.h"
#include "base/ErrorLog.h"
#include "base/FileSystem.h"
#include "desk/ChartOutput.h"
#include "desk/Commands.h"
#include "desk/Messages.h"
#include "desk/StatusArea.h"
#include "power/PowerChart.h"
#include "power/RunFields.h"
#include "power/RunFinder.h"
#include "power/SavedRun.h"
#include "power/SpeedGraphInput.h"

namespace tarnview {

/// Power and torque of one run, with a saved graph beside it. It keeps what it drew when the log
/// goes.
class frmPowerGraph : public PowerGraphControls {
 public:
  /// What it asks of the program.
  struct Surroundings {
    OpenLog& log;
    Settings& settings;
    const clsCarDefs& cars;
    FileSystem& files;
    Clock& clock;
    ErrorLog& errors;
    Messages& messages;
  };
  /// What it needs of the main window.
  struct MainWindow {
    virtual ~MainWindow() = default;
    /// The range in its two boxes.
    virtual SampleRange MainRange() const = 0;
    /// Plots a range anew, with one of its samples chosen.
    virtual void PlotRun(const SampleRange& range, std::int32_t sample) = 0;
    /// Metres per second in one unit of the log's road speed, of a Universal log that says so; else
    /// 0.
    virtual double AutoGearSpeedFactor() const = 0;
    virtual void OpenSpeedGraph(const SpeedGraphInput& input) = 0;
    /// The list of recent power graphs has changed: every power window lists it again.
    virtual void RecentPowerFilesChanged() = 0;
    virtual void PowerGraphClosed(int ID) = 0;
  };
  frmPowerGraph(Host& itsHost, const Surroundings& surroundings, MainWindow& mainWindow);

  int ID = 0;  ///< its number among the open power windows

  /// The log is about to go: the graph stays, but can no longer be copied into the log.
  void LogIsClosing();
  /// Another log is open.
  void LogIsOpen();
  void ListRecentFiles();
  void ListCars();

  /// Loads a saved graph as the benchmark; false, and the user was told, if it cannot be read.
  bool LoadBenchmark(const std::string& path);
  /// A graph stands in the window.
  bool Drawn() const { return drawn_.has_value(); }
  /// The last save wrote its file.
  bool Saved() const { return saved_; }

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  /// A run that was drawn, and where it came from.
  struct DrawnRun {
    PowerRun run;
    PowerCurves curves;
    SampleRange range;
    std::string file;
    std::string correctionFactor;
    bool ofOpenLog = true;
  };
  struct Benchmark {
    std::string name;
    PowerFile graph;
  };

  std::vector<Command> CommandRows();
  std::vector<Command> FileCommandRows();
  std::vector<Command> OutputCommands();
  void BindControls();
  void SetCaption();

  void cmdDrawGraph_Click();
  /// The range to draw, brought into the log; nothing, and the user was told, if it is too short.
  std::optional<SampleRange> TakeRange();
  void Draw(const SampleRange& range);
  /// In the units of the window; nothing where it is not to be shown.
  std::optional<ShownBenchmark> BenchmarkToShow(const PowerRun& run) const;
  void TellFault(const std::string& fault);
  void ShowGraph(const PowerCurves& curves, const std::optional<ShownBenchmark>& benchmark);
  void FindTheRuns();
  /// The curves of the run at the point nearest to an engine speed, side by side; where that point
  /// is.
  std::optional<double> ShowReadingAt(double rpm);
  void HideReading();

  void mnuFileOpen_Click();
  void mnuFileSave_Click();
  void mnuFileSaveAs_Click();
  void SavePowerGraphFile(const std::string& strFileName);
  void OpenRecentFile(int index);
  void RememberFile(const std::string& path);
  void DropBenchmark();
  Dialog FileDialog(DialogKind kind, const char* title) const;
  void mnuToolsSpeed_Click();
  void mnuToolsCopy_Click();
  void CopyToLog(int column, std::int64_t sample, double value);
  PrintDetails DetailsForPrint() const;

  Surroundings around_;
  MainWindow& mainWindow_;
  StatusArea status_{*this, staPowerGraph, prgProgInd};
  RunFields fields_;
  ChartOutput output_;
  Commands commands_;
  std::vector<FoundRun> runs_;
  std::optional<DrawnRun> drawn_;
  std::optional<Benchmark> benchmark_;
  std::string savedPath_;
  std::string comments_;
  bool saved_ = false;
};

}  // namespace tarnview
