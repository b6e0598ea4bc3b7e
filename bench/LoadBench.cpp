// Loading an FM Link log from its file, beside a plain newline scan of the same bytes: the load should cost no more
// than a few times what it costs to look at every line once.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>

#include "SyntheticLog.h"
#include "base/FileSystem.h"
#include "loaders/FMLinkLog.h"

namespace tarnview::bench {
namespace {

/// A synthetic log on disk; gone with the program.
class LogFile {
 public:
  explicit LogFile(int samples)
      : path_((std::filesystem::temp_directory_path() /
               ("tarnview-bench-" + std::to_string(getpid()) + "-" + std::to_string(samples) + ".txt"))
                  .string()) {
    RealFileSystem().Write(path_, SyntheticFMLinkLog(samples));
  }
  ~LogFile() { RealFileSystem().DeleteFile(path_); }
  LogFile(const LogFile&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

long CountLines(const std::string& path) {
  const auto size = std::filesystem::file_size(path);
  const int file = open(path.c_str(), O_RDONLY);
  void* bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
  close(file);
  const char* at = static_cast<const char*>(bytes);
  const char* const end = at + size;
  long lines = 0;
  while ((at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at))))) {
    ++lines;
    if (++at == end) break;
  }
  munmap(bytes, size);
  return lines;
}

void NewlineScan(benchmark::State& state, const LogFile& file) {
  for (auto _ : state) benchmark::DoNotOptimize(CountLines(file.Path()));
}

void Load(benchmark::State& state, const LogFile& file) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  const ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
  const Settings settings;
  NoProgress progress;
  for (auto _ : state) {
    OpenLog log;
    const auto bytes = RealFileSystem().Read(file.Path());
    const LoadContext context{log, catalogue.gcolFixedDataItems, settings, tables, progress};
    if (!LoadFMLinkLog(*bytes, context, true).loaded) state.SkipWithError("not loaded");
    benchmark::DoNotOptimize(log);
  }
}

/// The usual table, and the CPU times of all runs by name.
class Reporter : public benchmark::ConsoleReporter {
 public:
  std::map<std::string, double> milliseconds;

  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) milliseconds[run.run_name.function_name] = run.GetAdjustedCPUTime();
  }
};

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const LogFile large(300000), small(30000);
  const auto add = [](const char* name, auto function, const LogFile& file) {
    benchmark::RegisterBenchmark(name, [function, &file](benchmark::State& state) {
      function(state, file);
    })->Unit(benchmark::kMillisecond);
  };
  add("NewlineScan_300000", NewlineScan, large);
  add("Load_300000", Load, large);
  add("Load_30000", Load, small);
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const auto ratio = [&](const char* a, const char* b) { return reporter.milliseconds[a] / reporter.milliseconds[b]; };
  std::printf("load / newline scan: %.1f\n300000 samples / 30000: %.1f\n", ratio("Load_300000", "NewlineScan_300000"),
              ratio("Load_300000", "Load_30000"));
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
