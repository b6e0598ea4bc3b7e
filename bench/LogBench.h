#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <string_view>

#include "loaders/FMLinkLog.h"

namespace tarnview::bench {

/// A log on disk; gone with the program.
class LogFile {
 public:
  LogFile(const std::string& name, const std::string& text);
  ~LogFile();
  LogFile(const LogFile&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

using Loader = LoadOutcome (*)(std::string_view bytes, const LoadContext& context);

/// Counts the lines of the mapped file: what it costs to look at every line once.
void NewlineScan(benchmark::State& state, const LogFile& file);
/// Reads the file and loads it.
void Load(benchmark::State& state, const LogFile& file, Loader load);

/// The usual table, and the CPU times of all runs by name.
class Reporter : public benchmark::ConsoleReporter {
 public:
  std::map<std::string, double> milliseconds;
  void ReportRuns(const std::vector<Run>& runs) override;
};

}  // namespace tarnview::bench
