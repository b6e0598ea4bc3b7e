// Power and torque of the longest run against the first draw of their chart, in one program, so
// that their ratio holds whatever the machine: working a run out should cost under a hundredth of
// showing it.

#include <QApplication>
#include <cstdio>

#include "LogBench.h"
#include "power/PowerChart.h"
#include "power/PowerRun.h"
#include "qt/chart/ChartWidget.h"

namespace tarnview::bench {
namespace {

constexpr int kWidth = 1400, kHeight = 800;

PowerRun LongestRun() {
  PowerRun run;
  run.contentsWeight = run.car.lngCarContentsWeight;
  run.smoothing = run.car.lngSmoothingFactor;
  for (int i = 0; i <= kLongestRun; ++i) run.samples.push_back({i * 0.01, 2000.0 + i * 5 + i % 7});
  return run;
}

void WorkOut(benchmark::State& state) {
  const PowerRun run = LongestRun();
  for (auto _ : state) benchmark::DoNotOptimize(CurvesOf(run).points.data());
}

void FirstDraw(benchmark::State& state) {
  const ChartDescription chart = PowerChart(CurvesOf(LongestRun()), std::nullopt);
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  for (auto _ : state) {
    ChartWidget widget;
    widget.resize(kWidth, kHeight);
    widget.SetDescription(chart);
    QCPPainter painter(&image);
    painter.setMode(QCPPainter::pmNoCaching);
    widget.Paint(painter, kWidth, kHeight);
  }
}

int Main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RegisterBenchmark("WorkOut", WorkOut)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("FirstDraw", FirstDraw)->Unit(benchmark::kMillisecond);
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::printf("working a run out / first draw: %.4f\n",
              reporter.milliseconds["WorkOut"] / reporter.milliseconds["FirstDraw"]);
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
