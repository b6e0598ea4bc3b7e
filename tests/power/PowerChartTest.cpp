#include "base/Numbers.h"
#include "power/PowerChart.h"
#include "support/Table.h"

namespace tarnview {
namespace {

std::string Axis(const ChartAxis& axis) {
  return NumberText(axis.min) + "-" + NumberText(axis.max) + "/" + std::to_string(axis.divisions) +
         (axis.minorDivisions == 2 ? " halved" : "");
}

TEST(PowerChart, LegendsNamePeaksAndTopSpeed) {
  PowerPeaks peaks{141.25, 6480.4, 131, 4200, 7000, 128};
  EXPECT_EQ(PowerLegend("Your", peaks, true), "Your Power (141.2 hp @ 6480 rpm, Vmax 128 mph)");
  EXPECT_EQ(TorqueLegend("Your", peaks, true), "Your Torque (131.0 lbft @ 4200 rpm)");
  peaks.topSpeed = 206.1;
  EXPECT_EQ(PowerLegend("Benchmark", peaks, false),
            "Benchmark Power (141.2 kW @ 6480 rpm, Vmax 206.1 kmh)");
  EXPECT_EQ(TorqueLegend("Benchmark", peaks, false), "Benchmark Torque (131.0 Nm @ 4200 rpm)");
  peaks.topSpeed.reset();
  EXPECT_EQ(PowerLegend("Benchmark", peaks, true), "Benchmark Power (141.2 hp @ 6480 rpm)");
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

TEST(PowerChart, ABenchmarkAddsItsPairAndCountsForTheAxes) {
  PowerCurves run;
  run.points = {{3000, 90, 100}, {4000, 120, 110}};
  run.peaks = PeaksOf(run.points);
  run.peaks.topSpeed = 110.5;
  ChartDescription chart = PowerChart(run, std::nullopt);
  EXPECT_EQ(chart.Series().size(), 2u);
  EXPECT_EQ(Axis(chart.x) + " " + Axis(chart.y), "1000-8000/7 halved 0-140/7");
  ShownBenchmark benchmark;
  benchmark.points = {{8500, 310, 200}};
  benchmark.peaks = PeaksOf(benchmark.points);
  chart = PowerChart(run, benchmark);
  ASSERT_EQ(chart.Series().size(), 4u);
  EXPECT_EQ(chart.Series()[3].y, (std::vector<double>{200}));
  EXPECT_EQ(chart.Series()[2].x, (std::vector<double>{8500}));
  EXPECT_EQ(Axis(chart.x) + " " + Axis(chart.y), "1000-9000/8 halved 0-350/7");
}

TEST(PowerChart, EachPeakIsMarkedOnItsOwnCurve) {
  PowerCurves run;
  run.points = {{3000, 90, 110}, {4000, 120, 100}, {5000, -1, -1}};
  run.peaks = PeaksOf(run.points);
  run.peaks.topSpeed = 110.5;
  const ChartMark power{4000, 120, "120.0 hp", 0x0000FF}, torque{3000, 110, "110.0 lbft", 0xFF0000};
  EXPECT_EQ(PowerChart(run, std::nullopt).marks, (std::vector{power, torque}));
  run.imperial = false;
  run.peaks.power = 0;
  EXPECT_EQ(PowerChart(run, std::nullopt).marks,
            (std::vector<ChartMark>{{3000, 110, "110.0 Nm", 0xFF0000}}));
  EXPECT_EQ(ReadingText(run.points[0], false), "3000 rpm: 90.0 kW, 110.0 Nm");
  const ChartMark rpm{3000, 0, "3000 rpm", 0, false};
  EXPECT_EQ(ReadingMarks(run.points[0], false),
            (std::vector<ChartMark>{
                {3000, 90, "90.0 kW", 0x0000FF}, {3000, 110, "110.0 Nm", 0xFF0000}, rpm}));
}

}  // namespace
}  // namespace tarnview
