// Loading a Tec-2, a Link Plus and a UTEC log from its file, beside a plain newline scan of the
// same bytes, and a tenth of it: the cost should grow no faster than the log.

#include <cstdio>
#include <filesystem>
#include <memory>
#include <vector>

#include "LogBench.h"
#include "SyntheticFixedLogs.h"
#include "loaders/LinkPlusLog.h"
#include "loaders/Tec2Log.h"
#include "loaders/UTECCSVLog.h"

namespace tarnview::bench {
namespace {

struct Layout {
  std::string name;
  std::string (*text)(int samples);
  Loader load;
};
const Layout kLayouts[] = {
    {"Tec2", SyntheticTec2Log, LoadTec2Log},
    {"LinkPlus", SyntheticLinkPlusLog, LoadLinkPlusLog},
    {"UTECCSV", SyntheticUTECCSVLog, LoadUTECCSVLog},
};

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  std::vector<std::unique_ptr<LogFile>> files;
  const auto add = [](const std::string& name, auto run) {
    benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMillisecond);
  };
  for (const Layout& layout : kLayouts) {
    const auto file = [&](int samples) {
      files.push_back(
          std::make_unique<LogFile>(layout.name + std::to_string(samples), layout.text(samples)));
      return files.back().get();
    };
    const LogFile *large = file(300000), *small = file(30000);
    const Loader load = layout.load;
    add(layout.name + "_NewlineScan",
        [large](benchmark::State& state) { NewlineScan(state, *large); });
    add(layout.name + "_300000",
        [large, load](benchmark::State& state) { Load(state, *large, load); });
    add(layout.name + "_30000",
        [small, load](benchmark::State& state) { Load(state, *small, load); });
    std::printf("%s: %.1f MB\n", layout.name.c_str(),
                static_cast<double>(std::filesystem::file_size(large->Path())) / 1e6);
  }
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  for (const Layout& layout : kLayouts) {
    const double large = reporter.milliseconds[layout.name + "_300000"];
    std::printf("%s: load / newline scan %.1f, 300000 samples / 30000 %.1f\n", layout.name.c_str(),
                large / reporter.milliseconds[layout.name + "_NewlineScan"],
                large / reporter.milliseconds[layout.name + "_30000"]);
  }
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
