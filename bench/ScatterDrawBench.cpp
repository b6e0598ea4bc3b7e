// The points of a scatter graph on a screen's picture and under the pointer: 300,000 should cost
// far less than a hundred times what 3,000 do, since pixels are what is drawn, and a click next to
// nothing.

#include <QApplication>
#include <cmath>
#include <cstdio>
#include <random>

#include "LogBench.h"
#include "qt/chart/ChartWidget.h"

namespace tarnview::bench {
namespace {

constexpr int kWidth = 1400, kHeight = 800;

ChartDescription Cloud(int points, bool tint, bool density) {
  ChartDescription chart;
  chart.x = {0, 8000, 8, "#######0", "RPM"};
  chart.y = {8, 20, 12, "#######0.0", "Air/Fuel Ratio"};
  PointCloud& cloud = chart.kind.emplace<PointCloud>();
  cloud.size = 3;
  cloud.density = density;
  cloud.tintAxis = {0, 1, 10, "0.0", "Load"};
  std::mt19937 random(1);
  std::normal_distribution<double> normal;
  std::uniform_real_distribution<double> even;
  for (int i = 0; i < points; ++i) {
    cloud.x.push_back(std::round(800 + 6800 * even(random)));
    cloud.y.push_back(14 + normal(random));
    if (tint) cloud.tint.push_back(even(random));
  }
  return chart;
}

void Fill(benchmark::State& state) {
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  for (auto _ : state) {
    image.fill(Qt::white);
    benchmark::DoNotOptimize(image.bits());
  }
}

void Draw(benchmark::State& state, const ChartDescription& chart) {
  ChartWidget widget;
  widget.resize(kWidth, kHeight);
  widget.SetDescription(chart);
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  for (auto _ : state) {
    QCPPainter painter(&image);
    painter.setMode(QCPPainter::pmNoCaching);
    widget.Paint(painter, kWidth, kHeight);
  }
}

/// Clicks all over the chart.
void Pick(benchmark::State& state, const ChartDescription& chart) {
  ChartWidget widget;
  widget.resize(kWidth, kHeight);
  widget.SetDescription(chart);
  int x = 0, y = 0;
  for (auto _ : state) widget.ClickAt(QPointF(x = (x + 377) % kWidth, y = (y + 119) % kHeight));
}

int Main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  const auto add = [](const char* name, auto run) {
    benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMillisecond);
  };
  const ChartDescription few = Cloud(3000, false, false), many = Cloud(300000, false, false);
  const ChartDescription tinted = Cloud(300000, true, false), dense = Cloud(300000, false, true);
  add("Fill", Fill);
  add("Draw_3000", [&](benchmark::State& state) { Draw(state, few); });
  add("Draw_300000", [&](benchmark::State& state) { Draw(state, many); });
  add("DrawTinted_300000", [&](benchmark::State& state) { Draw(state, tinted); });
  add("DrawDense_300000", [&](benchmark::State& state) { Draw(state, dense); });
  add("Pick_300000", [&](benchmark::State& state) { Pick(state, many); });
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const auto ratio = [&](const char* a, const char* b) {
    return reporter.milliseconds[a] / reporter.milliseconds[b];
  };
  std::printf(
      "300000 points / 3000: %.1f\ntinted / plain: %.2f\ndense / plain: %.2f\n300000 points / "
      "filling the picture: "
      "%.0f\n"
      "click / drawing: %.5f\n",
      ratio("Draw_300000", "Draw_3000"), ratio("DrawTinted_300000", "Draw_300000"),
      ratio("DrawDense_300000", "Draw_300000"), ratio("Draw_300000", "Fill"),
      ratio("Pick_300000", "Draw_300000"));
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
