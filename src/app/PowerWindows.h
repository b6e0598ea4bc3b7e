#pragma once

#include <vector>

#include "app/Globals.h"
#include "app/MainWindowControls.h"
#include "desk/Commands.h"
#include "power/frmPowerGraph.h"
#include "power/frmSpeedGraph.h"
#include "samplegraph/PlotRange.h"
#include "ui/FormCollection.h"

namespace tarnview {

/// The power and speed graph windows of the program: it opens them and tells them what happens to
/// the log.
class PowerWindows : private frmPowerGraph::MainWindow {
 public:
  /// What it needs of the main window.
  struct SampleGraphWindow {
    virtual ~SampleGraphWindow() = default;
    /// Plots a range anew, with one of its samples chosen.
    virtual void PlotRun(const SampleRange& range, std::int32_t sample) = 0;
  };
  PowerWindows(MainWindowControls& controls, Globals& globals, Services& services,
               const PlotRange& range, SampleGraphWindow& mainWindow);

  std::vector<Command> Rows();

  /// Opens another power graph window, as its command does.
  frmPowerGraph& Open();
  /// Shows a car's details; true on OK, with what the user made of it.
  bool EditCar(clsCarDef& car);

  void LogIsClosing();
  void LogIsOpen();
  void CarsChanged();
  /// Settings have changed: the colours of what is drawn follow.
  void OptionsChanged();
  void UnloadAll();

 private:
  SampleRange MainRange() const override { return {range_.From(), range_.To()}; }
  void PlotRun(const SampleRange& range, std::int32_t sample) override {
    mainWindow_.PlotRun(range, sample);
  }
  double AutoGearSpeedFactor() const override {
    return globals_.gclsDataLogDefinition.dblAutoGearSpeedFactor;
  }
  void OpenSpeedGraph(const SpeedGraphInput& input) override;
  void RecentPowerFilesChanged() override;
  void PowerGraphClosed(int ID) override { powerGraphs_.Remove(ID); }

  MainWindowControls& controls_;
  Globals& globals_;
  Services& services_;
  const PlotRange& range_;
  SampleGraphWindow& mainWindow_;
  FormCollection<frmPowerGraph> powerGraphs_;
  FormCollection<frmSpeedGraph> speedGraphs_;
};

}  // namespace tarnview
