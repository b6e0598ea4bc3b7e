#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "power/PowerLog.h"
#include "power/frmPowerGraph.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "ui/RecordingHost.h"

namespace tarnview {

/// A power graph window over a small log, before a desktop that records.
class PowerWindowsTest : public ::testing::Test, protected frmPowerGraph::MainWindow {
 protected:
  /// 1201 samples from number 100 on, a tenth of a second each, 2000 rpm and 20 more with each.
  static std::string Lines() {
    std::string lines;
    for (int i = 0; i <= 1200; ++i)
      lines += std::to_string(100 + i) + " " + FixedText(i * 0.1, 1) + " " +
               std::to_string(2000 + i * 20) + " 4.5\n";
    return lines;
  }

  void Open(const std::string& lines = Lines()) {
    made = std::make_unique<PowerLog>(lines);
    const frmPowerGraph::Surroundings around{made->log, settings, cars,    files,
                                             clock,     errors,   messages};
    frmPowerGraph::MainWindow& self = *this;
    window = std::make_unique<frmPowerGraph>(host, around, self);
    window->Show();
  }
  void Draw(const std::string& from, const std::string& to) {
    window->txtPlotRangeFrom.Do({"type", {from}});
    window->txtPlotRangeTo.Do({"type", {to}});
    window->cmdDrawGraph.Do({"click", {}});
  }
  std::string Range() const {
    return window->txtPlotRangeFrom.Text() + "-" + window->txtPlotRangeTo.Text();
  }
  std::string Names() const {
    std::string names;
    for (const ChartSeries& series : window->chPowerGraph.Data().Series())
      names += series.name + "\n";
    return names;
  }
  /// The ids of the boxes since the last call.
  std::vector<int> Boxes() {
    std::vector<int> ids;
    for (const Box& box : host.messages) ids.push_back(box.id);
    host.messages.clear();
    return ids;
  }
  const std::string& Panel(int panel) const { return window->staPowerGraph.Panel(panel); }

  SampleRange MainRange() const override { return mainRange; }
  void PlotRun(const SampleRange& range, std::int32_t sample) override {
    plotted += std::to_string(range.from) + "-" + std::to_string(range.to) + " at " +
               std::to_string(sample);
  }
  double AutoGearSpeedFactor() const override { return speedFactor; }
  void OpenSpeedGraph(const SpeedGraphInput& input) override { speedGraphs.push_back(input); }
  void RecentPowerFilesChanged() override { window->ListRecentFiles(); }
  void PowerGraphClosed(int) override {}

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, ""};
  Messages messages{host, [](int) { return ""; }};
  Settings settings;
  clsCarDefs cars;
  SampleRange mainRange{120, 180};
  std::string plotted;
  double speedFactor = 0;
  std::vector<SpeedGraphInput> speedGraphs;
  std::unique_ptr<PowerLog> made;
  std::unique_ptr<frmPowerGraph> window;
};

}  // namespace tarnview
