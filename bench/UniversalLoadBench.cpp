// Loading a Universal log of 17 columns through the built-in definition, beside a plain newline
// scan of the same bytes, and a tenth of it: the cost should grow no faster than the log.

#include <cstdio>
#include <filesystem>

#include "LogBench.h"
#include "SyntheticUniversalLog.h"
#include "base/FileSystem.h"
#include "model/Catalogue.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/UniversalDataItems.h"
#include "universal/UniversalLog.h"

namespace tarnview::bench {
namespace {

void LoadUniversal(benchmark::State& state, const LogFile& file) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  const clsDataLog definition = DefaultDataLogDefinition();
  const clsLogDataItems items =
      GenerateLogDataItemsGeneric(definition, catalogue.gcolFixedDataItems);
  const ConversionTables tables;
  const Settings settings;
  NoProgress progress;
  for (auto _ : state) {
    OpenLog log;
    const auto bytes = RealFileSystem().Read(file.Path());
    if (!LoadGenericDataLog(*bytes, {log, items, settings, tables, progress}, definition).loaded)
      state.SkipWithError("not loaded");
    benchmark::DoNotOptimize(log);
  }
}

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const LogFile large("universal-300000", SyntheticUniversalLog(300000));
  const LogFile small("universal-30000", SyntheticUniversalLog(30000));
  const auto add = [](const char* name, auto function, const LogFile& file) {
    benchmark::RegisterBenchmark(name, [function, &file](benchmark::State& state) {
      function(state, file);
    })->Unit(benchmark::kMillisecond);
  };
  add("NewlineScan_300000", NewlineScan, large);
  add("Load_300000", LoadUniversal, large);
  add("Load_30000", LoadUniversal, small);
  std::printf("Universal: %.1f MB\n",
              static_cast<double>(std::filesystem::file_size(large.Path())) / 1e6);
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const auto ratio = [&](const char* a, const char* b) {
    return reporter.milliseconds[a] / reporter.milliseconds[b];
  };
  std::printf("Universal: load / newline scan %.1f, 300000 samples / 30000 %.1f\n",
              ratio("Load_300000", "NewlineScan_300000"), ratio("Load_300000", "Load_30000"));
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
