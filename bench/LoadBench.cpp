// An FM Link log from its file to the first graph, beside a plain newline scan of the same bytes:
// the load should cost no more than a few times what it costs to look at every line once, and the
// graph a small part of the load.

#include <cstdio>

#include "LogBench.h"
#include "SyntheticLog.h"
#include "app/Program.h"
#include "ui/RecordingHost.h"

namespace tarnview::bench {
namespace {

LoadOutcome FMLink(std::string_view bytes, const LoadContext& context) {
  return LoadFMLinkLog(bytes, context, true);
}

/// Draw in the main window, from the open log to what the chart receives, each time as if for the
/// first.
void FirstGraph(benchmark::State& state, const LogFile& file) {
  RecordingHost host;
  RealFileSystem files;
  RealClock clock;
  RealProcesses processes;
  Program program(host, files, clock, processes, {});
  program.Start("", false);
  frmDataLogViewer& window = program.MainWindow();
  if (!window.LoadDataFile(file.Path(), kFMLinkLog)) return state.SkipWithError("not loaded");
  for (auto _ : state) {
    window.ForceRedraw();
    window.DrawGraph();
  }
}

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const LogFile large("fmlink300000", SyntheticFMLinkLog(300000)),
      small("fmlink30000", SyntheticFMLinkLog(30000));
  const auto add = [](const char* name, auto run) {
    benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMillisecond);
  };
  add("NewlineScan_300000", [&](benchmark::State& state) { NewlineScan(state, large); });
  add("Load_300000", [&](benchmark::State& state) { Load(state, large, FMLink); });
  add("Load_30000", [&](benchmark::State& state) { Load(state, small, FMLink); });
  add("FirstGraph_300000", [&](benchmark::State& state) { FirstGraph(state, large); });
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const auto ratio = [&](const char* a, const char* b) {
    return reporter.milliseconds[a] / reporter.milliseconds[b];
  };
  std::printf(
      "load / newline scan: %.1f\n300000 samples / 30000: %.1f\nfirst graph / newline scan: %.1f\n",
      ratio("Load_300000", "NewlineScan_300000"), ratio("Load_300000", "Load_30000"),
      ratio("FirstGraph_300000", "NewlineScan_300000"));
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
