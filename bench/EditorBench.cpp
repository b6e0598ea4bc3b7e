// The zone editor on a long log, in the real window without a screen. Opening it should cost under
// 50 ms of CPU, and showing on its grids what the whole drive says under 60 ms.

#include <QApplication>
#include <functional>

#include "LogBench.h"
#include "SyntheticLog.h"
#include "app/Program.h"
#include "qt/pictures/UnattendedHost.h"
#include "zoneeditor/frmZoneData.h"

namespace tarnview::bench {
namespace {

/// Somebody who does one thing in a modal window and closes it.
class BusyHost : public UnattendedHost {
 public:
  std::function<void(Form&)> work;

  void Show(Form& form, bool modal) override {
    UnattendedHost::Show(form, false);
    if (!modal) return;
    Settle();
    if (work) work(form);
    form.Unload();
  }
  /// Until what is queued has been worked off and painted.
  void Settle() {
    for (int turn = 0; turn < 3; ++turn) DoEvents();
  }
};

/// The program with its main window, the log loaded.
struct Window {
  explicit Window(const std::string& path) : program(host, files, clock, processes, {}) {
    program.Start("", false);
    loaded = program.MainWindow().LoadDataFile(path, kFMLinkLog);
  }
  void OpenEditor() { program.MainWindow().mnuModulesZoneData.Click(); }

  BusyHost host;
  RealFileSystem files;
  RealClock clock;
  RealProcesses processes;
  Program program;
  bool loaded = false;
};

void Open(benchmark::State& state, Window& window) {
  int opened = 0;
  window.host.work = [&](Form&) { ++opened; };
  for (auto _ : state) window.OpenEditor();
  if (opened != state.iterations()) state.SkipWithError("the editor did not open");
}

void ShowOnGrid(benchmark::State& state, Window& window) {
  window.host.work = [&](Form& form) {
    auto& editor = dynamic_cast<frmZoneData&>(form);
    editor.tabZoneData2.Select(2);
    editor.Driven.chkWholeLog.Value = true;
    int show = 1;
    for (auto _ : state) {
      editor.Driven.cboShowOnGrid.SetListIndex(show);
      window.host.Settle();
      show = show % 3 + 1;
    }
  };
  window.OpenEditor();
}

int Main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  benchmark::Initialize(&argc, argv);
  const LogFile log("fmlink300000", SyntheticFMLinkLog(300000));
  Window window(log.Path());
  if (!window.loaded) return 1;
  const struct {
    const char* name;
    void (*run)(benchmark::State& state, Window& window);
  } kRows[] = {{"Open_300000", Open}, {"ShowOnGrid_300000", ShowOnGrid}};
  for (const auto& row : kRows)
    benchmark::RegisterBenchmark(row.name, [&window, run = row.run](benchmark::State& state) {
      run(state, window);
    })->Unit(benchmark::kMillisecond);
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
