// Moving through a long log in the real window, drawn by the toolkit without a screen: a notch of
// the wheel and a step of the scroll bar, beside the first draw of the whole log. A step should
// cost under 50 ms of CPU.

#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>
#include <cstdio>

#include "LogBench.h"
#include "SyntheticLog.h"
#include "app/Program.h"
#include "qt/chart/ChartWidget.h"
#include "qt/pictures/UnattendedHost.h"

namespace tarnview::bench {
namespace {

/// The program with its main window on a large screen, the log drawn whole.
class Window {
 public:
  explicit Window(const std::string& path) : program_(host_, files_, clock_, processes_, {}) {
    program_.Start("", false);
    loaded_ = Main().LoadDataFile(path, kFMLinkLog);
    widget().resize(1920, 1080);
    FirstDraw();
  }
  bool loaded() const { return loaded_; }

  void FirstDraw() {
    Main().cmdZoomFull.Press();
    Main().ForceRedraw();
    Main().DrawGraph();
    Settle();
  }
  void Turn(int notches) {
    ChartWidget& chart = *widget().findChild<ChartWidget*>("chSampleGraph");
    const QPointF at = chart.rect().center();
    QWheelEvent event(at, chart.mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&chart, &event);
    Settle();
  }
  void Scroll(QAbstractSlider::SliderAction step) {
    widget().findChild<QScrollBar*>("hsbGraphScrollLarge")->triggerAction(step);
    Settle();
  }
  std::int64_t Width() { return Main().PlotTo() - Main().PlotFrom(); }

 private:
  frmDataLogViewer& Main() { return program_.MainWindow(); }
  QWidget& widget() { return host_.WindowOf(Main())->window(); }
  /// Until what is queued has been worked off and painted.
  void Settle() {
    for (int turn = 0; turn < 3; ++turn) host_.DoEvents();
  }

  UnattendedHost host_;
  RealFileSystem files_;
  RealClock clock_;
  RealProcesses processes_;
  Program program_;
  bool loaded_ = false;
};

void FirstDraw(benchmark::State& state, Window& window) {
  for (auto _ : state) window.FirstDraw();
}

void WheelStep(benchmark::State& state, Window& window) {
  window.FirstDraw();
  int notches = 1;
  for (auto _ : state) {
    const std::int64_t before = window.Width();
    window.Turn(notches);
    if (window.Width() == before) return state.SkipWithError("the wheel did not zoom");
    notches = -notches;
  }
}

void ScrollStep(benchmark::State& state, Window& window) {
  window.FirstDraw();
  window.Turn(1);
  auto step = QAbstractSlider::SliderSingleStepAdd;
  for (auto _ : state) {
    window.Scroll(step);
    step = step == QAbstractSlider::SliderSingleStepAdd ? QAbstractSlider::SliderSingleStepSub
                                                        : QAbstractSlider::SliderSingleStepAdd;
  }
}

int Main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  benchmark::Initialize(&argc, argv);
  const LogFile log("fmlink300000", SyntheticFMLinkLog(300000));
  Window window(log.Path());
  if (!window.loaded()) return 1;
  const auto add = [&](const char* name, auto run) {
    benchmark::RegisterBenchmark(name, [&window, run](benchmark::State& state) {
      run(state, window);
    })->Unit(benchmark::kMillisecond);
  };
  add("FirstDraw_300000", FirstDraw);
  add("WheelStep_300000", WheelStep);
  add("ScrollStep_300000", ScrollStep);
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const double first = reporter.milliseconds["FirstDraw_300000"];
  std::printf("wheel step / first draw: %.2f\nscroll step / first draw: %.2f\n",
              reporter.milliseconds["WheelStep_300000"] / first,
              reporter.milliseconds["ScrollStep_300000"] / first);
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
