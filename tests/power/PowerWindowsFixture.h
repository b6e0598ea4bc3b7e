#pragma once

#include <memory>
#include <string>
#include <vector>

#include "power/PowerLog.h"
#include "power/frmPowerGraph.h"
#include "support/DeskTest.h"

namespace tarnview {

/// A power graph window over a small log, before a desktop that records.
class PowerWindowsTest : public DeskTest, protected frmPowerGraph::MainWindow {
 protected:
  PowerWindowsTest() {
    story.Verb("draw", [this](const auto& ends) { Draw(ends[0], ends[1]); });
    story.Verb("break", [this](const auto& path) { files.broken.insert(path[0]); });
    story.PassOver("chPowerGraph");
    story.Fact("curves", [this] { return Names(); });
    story.Fact("main", [this] { return plotted; });
    story.Fact("disk", [this] { return files.accesses.empty() ? "" : files.accesses.back(); });
  }
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
  std::string Names() const {
    std::string names;
    if (window)
      for (const ChartSeries& series : window->chPowerGraph.Data().Series())
        names += (names.empty() ? "" : "; ") + series.name;
    return names;
  }

  SampleRange MainRange() const override { return mainRange; }
  void PlotRun(const SampleRange& range, std::int32_t sample) override {
    plotted = std::to_string(range.from) + "-" + std::to_string(range.to) + " at " +
              std::to_string(sample);
  }
  double AutoGearSpeedFactor() const override { return speedFactor; }
  void OpenSpeedGraph(const SpeedGraphInput& input) override {
    const auto curve = [](std::size_t speeds, bool imperial) {
      return std::to_string(speeds) + (imperial ? " imperial" : " metric");
    };
    plotted = curve(input.run.size(), input.imperial) + " speeds against " +
              curve(input.benchmark.size(), input.benchmarkImperial);
  }
  void RecentPowerFilesChanged() override { window->ListRecentFiles(); }
  void PowerGraphClosed(int) override {}

  Settings settings;
  clsCarDefs cars;
  SampleRange mainRange{120, 180};
  std::string plotted;  ///< what was last asked of the main window
  double speedFactor = 0;
  std::unique_ptr<PowerLog> made;
  std::unique_ptr<frmPowerGraph> window;
};

}  // namespace tarnview
