// Loading a Universal log of 17 columns through the built-in definition, beside a plain newline
// scan of the same bytes, and a tenth of it: the cost should grow no faster than the log. And its
// way to a file of comma-separated values, from loading to what is on the disk.

#include <cstdio>
#include <filesystem>
#include <numeric>

#include "LogBench.h"
#include "SyntheticUniversalLog.h"
#include "base/FileSystem.h"
#include "model/Catalogue.h"
#include "samplegraph/ExportText.h"
#include "universal/DefaultDataLogDefinition.h"
#include "universal/UniversalDataItems.h"
#include "universal/UniversalLog.h"

namespace tarnview::bench {
namespace {

/// The columns of the log, into a file beside it.
void Export(const OpenLog& log, const clsDataLog& definition, const std::string& path) {
  std::vector<int> columns;
  for (const clsDataLogColumn& column : definition.objColumns)
    columns.push_back(column.lngDataItemID);
  std::vector<std::int32_t> samples(static_cast<std::size_t>(log.glngDataLog.Rows()));
  std::iota(samples.begin(), samples.end(), 0);
  std::string out;
  AddExportTable(out, log, columns, samples, [](std::size_t) {});
  RealFileSystem files;
  WriteExport(files, path, out);
}

void LoadUniversal(benchmark::State& state, const LogFile& file, bool exports) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  const clsDataLog definition = DefaultDataLogDefinition();
  const clsLogDataItems items =
      GenerateLogDataItemsGeneric(definition, catalogue.gcolFixedDataItems);
  const ConversionTables tables;
  const Settings settings;
  NoProgress progress;
  const LogFile exported("universal-export", "");
  for (auto _ : state) {
    OpenLog log;
    const auto bytes = RealFileSystem().Read(file.Path());
    if (!LoadGenericDataLog(*bytes, {log, items, settings, tables, progress}, definition).loaded)
      state.SkipWithError("not loaded");
    if (exports) Export(log, definition, exported.Path());
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
  const auto load = [](benchmark::State& state, const LogFile& file) {
    LoadUniversal(state, file, false);
  };
  add("Load_300000", load, large);
  add("Load_30000", load, small);
  add(
      "LoadAndExport_300000",
      [](benchmark::State& state, const LogFile& file) { LoadUniversal(state, file, true); },
      large);
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
