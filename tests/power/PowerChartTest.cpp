#include "base/Numbers.h"
#include "power/PowerChart.h"
#include "power/PowerLog.h"
#include "support/Table.h"

namespace tarnview {
namespace {

std::string Axis(const ChartAxis& axis) {
  return NumberText(axis.min) + "-" + NumberText(axis.max) + "/" + std::to_string(axis.divisions) +
         (axis.minorDivisions == 2 ? " halved" : "");
}

TEST(PowerChart, AxesEndAtRoundNumbers) {
  const auto rpm = [](const TableRow& row) { return Axis(RpmAxis(row.Number(0))); };
  ExpectTable(rpm, R"(
0 -> 1000-8000/7 halved | 7999 -> 1000-8000/7 halved | 7999.5 -> 1000-9000/8 halved | 8999 -> 1000-9000/8 halved | 9000 -> 1000-10000/9 halved | 14000 -> 1000-10000/9 halved
)");
  const auto power = [](const TableRow& row) { return Axis(PowerAxis(row.Number(0))); };
  ExpectTable(power, R"(
-5 -> 0-20/1 | 0 -> 0-20/1 | 19.9 -> 0-20/1 | 20 -> 0-40/2 | 299 -> 0-300/15 | 300 -> 0-320/16 | 300.1 -> 0-350/7 | 350 -> 0-400/8 | 500 -> 0-550/11 | 500.1 -> 0-600/6 | 600 -> 0-700/7 | 999.9 -> 0-1000/10 | 109690 -> 0-109700/1097
)");
}

std::string Marks(const std::vector<ChartMark>& marks) {
  std::string told;
  for (const ChartMark& mark : marks)
    told += "; " + NumberText(mark.x) + " " + NumberText(mark.y) + " " + mark.text + " " +
            std::to_string(mark.colour) + (mark.ring ? "" : " no ring");
  return told;
}

/// A run, its top speed, a benchmark, each with its peaks.
TEST(PowerChart, NamesCurvesAndMarksPeaks) {
  const auto told = [](const TableRow& row) {
    PowerCurves run;
    run.imperial = row.Text(0) == "imperial";
    run.points = PointsOf(row.Text(1));
    run.peaks = PeaksOf(run.points);
    if (row.Number(2) > 0) run.peaks.topSpeed = row.Number(2);
    std::optional<ShownBenchmark> benchmark;
    if (row.Count() > 3) {
      const std::vector<PowerPoint> points = PointsOf(row.Text(3));
      benchmark = {points, PeaksOf(points)};
    }
    const ChartDescription chart = PowerChart(run, benchmark);
    std::string text = Axis(chart.x) + " " + Axis(chart.y);
    for (const ChartSeries& one : chart.Series()) {
      text += "; " + one.name + ":";
      for (std::size_t n = 0; n < one.x.size(); ++n)
        text += " " + NumberText(one.x[n]) + " " + NumberText(one.y[n]);
    }
    return text + Marks(chart.marks);
  };
  ExpectTable(told, R"(
imperial, 3000 90.25 110; 4000.4 120.25 100; 5000 -1 -1, 128 -> 1000-8000/7 halved 0-140/7; Your Power (120.2 hp @ 4000 rpm, Vmax 128 mph): 3000 90.25 4000.4 120.25 5000 -1; Your Torque (110.0 lbft @ 3000 rpm): 3000 110 4000.4 100 5000 -1; 4000.4 120.25 120.2 hp 255; 3000 110 110.0 lbft 16711680
metric, 3000 90 110; 4000 120 100; 8500 1 2, 206.1, 8500 310.5 200; 9500 300 210 -> 1000-10000/9 halved 0-350/7; Your Power (120.0 kW @ 4000 rpm, Vmax 206.1 kmh): 3000 90 4000 120 8500 1; Your Torque (110.0 Nm @ 3000 rpm): 3000 110 4000 100 8500 2; Benchmark Power (310.5 kW @ 8500 rpm): 8500 310.5 9500 300; Benchmark Torque (210.0 Nm @ 9500 rpm): 8500 200 9500 210; 4000 120 120.0 kW 255; 3000 110 110.0 Nm 16711680
metric, 3000 -1 110, 0 -> 1000-8000/7 halved 0-120/6; Your Power (0.0 kW @ 0 rpm): 3000 -1; Your Torque (110.0 Nm @ 3000 rpm): 3000 110; 3000 110 110.0 Nm 16711680
)");
  const PowerPoint point{3000, 90, 110};
  ExpectTold(
      ReadingText(point, false) + Marks(ReadingMarks(point, false)),
      R"(3000 rpm: 90.0 kW, 110.0 Nm; 3000 90 90.0 kW 255; 3000 110 110.0 Nm 16711680; 3000 0 3000 rpm 0 no ring)");
}

}  // namespace
}  // namespace tarnview
