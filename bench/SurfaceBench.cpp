// A zone grid as a surface, turned by a hand: each step should take less than 8 ms of a processor,
// so that it follows the hand.

#include <QApplication>
#include <cmath>

#include "LogBench.h"
#include "qt/chart/ChartWidget.h"

namespace tarnview::bench {
namespace {

constexpr int kWidth = 1400, kHeight = 800;
constexpr int kRows = 6, kColumns = 16;

ChartDescription Map() {
  Surface surface;
  surface.title = "Fuel Zone Graph";
  for (int row = 1; row <= kRows; ++row)
    surface.rows.push_back(std::to_string(40 * (row - 1)) + "kPa " + "00");
  for (int column = 0; column < kColumns; ++column)
    surface.columns.push_back(std::to_string(column * 5));
  for (int row = 0; row < kRows; ++row)
    for (int column = 0; column < kColumns; ++column)
      surface.values.push_back(60 + 20 * row + std::round(30 * std::sin(column * 0.3)));
  surface.height = {0, 250, 5, "##0", "Fuel"};
  ChartDescription chart;
  chart.kind = std::move(surface);
  return chart;
}

/// A full turn, a degree a step.
void Turn(benchmark::State& state) {
  ChartWidget widget;
  widget.resize(kWidth, kHeight);
  widget.show();
  ChartDescription chart = Map();
  SurfaceView& view = std::get<Surface>(chart.kind).view;
  view.elevation = 30;
  for (auto _ : state) {
    view.rotation = (view.rotation + 1) % 360;
    widget.SetDescription(chart);
    widget.replot(QCustomPlot::rpImmediateRefresh);
  }
}

/// Clicks all over the chart.
void Pick(benchmark::State& state) {
  ChartWidget widget;
  widget.resize(kWidth, kHeight);
  widget.SetDescription(Map());
  int x = 0, y = 0;
  for (auto _ : state) widget.ClickAt(QPointF(x = (x + 377) % kWidth, y = (y + 119) % kHeight));
}

int Main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RegisterBenchmark("Turn", Turn)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("Pick", Pick)->Unit(benchmark::kMillisecond);
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
