#include "LogBench.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>

#include "base/FileSystem.h"
#include "model/Catalogue.h"

namespace tarnview::bench {
namespace {

long CountLines(const std::string& path) {
  const auto size = std::filesystem::file_size(path);
  const int file = open(path.c_str(), O_RDONLY);
  void* bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
  close(file);
  const char* at = static_cast<const char*>(bytes);
  const char* const end = at + size;
  long lines = 0;
  while (
      (at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at))))) {
    ++lines;
    if (++at == end) break;
  }
  munmap(bytes, size);
  return lines;
}

}  // namespace

LogFile::LogFile(const std::string& name, const std::string& text)
    : path_((std::filesystem::temp_directory_path() /
             ("tarnview-bench-" + std::to_string(getpid()) + "-" + name))
                .string()) {
  RealFileSystem().Write(path_, text);
}

LogFile::~LogFile() { RealFileSystem().DeleteFile(path_); }

void NewlineScan(benchmark::State& state, const LogFile& file) {
  for (auto _ : state) benchmark::DoNotOptimize(CountLines(file.Path()));
}

void Load(benchmark::State& state, const LogFile& file, Loader load) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  const ConversionTables tables{DefaultO2Table(), DefaultAuxTable(), false, false};
  const Settings settings;
  NoProgress progress;
  for (auto _ : state) {
    OpenLog log;
    const auto bytes = RealFileSystem().Read(file.Path());
    if (!load(*bytes, {log, catalogue.gcolFixedDataItems, settings, tables, progress}).loaded)
      state.SkipWithError("not loaded");
    benchmark::DoNotOptimize(log);
  }
}

void Reporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs)
    if (run.run_type == Run::RT_Iteration || run.aggregate_name == "median")
      milliseconds[run.run_name.function_name] = run.GetAdjustedCPUTime();
}

}  // namespace tarnview::bench
