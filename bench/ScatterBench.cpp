// The walk through a log for a scatter graph with four filters, against reading the five columns
// that it needs twice. Both run in one program, so that their ratio holds whatever the machine.

#include <cstdio>
#include <random>

#include "LogBench.h"
#include "model/Catalogue.h"
#include "scatter/ScatterPoints.h"

namespace tarnview::bench {
namespace {

const int kItems[] = {ItemOf(kRPM), ItemOf(kMAP), ItemOf(kTPS), ItemOf(kAF)};

/// The longest log that is kept, with values that no filter sorts into long runs.
struct LongLog {
  Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;

  LongLog() {
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int32_t> stored(0, 9999);
    log.Clear(catalogue.gcolFixedDataItems, kMostSamples);
    for (int row = 0; row < kMostSamples; ++row) {
      log.glngDataLog.AddRow();
      log.glngDataLog.Set(kSample, row, row + 1);
      for (const int item : kItems) log.glngDataLog.Set(item - 1, row, stored(random));
    }
    log.glngLastSample = kMostSamples - 1;
    log.glngFirstSampleTime = 1;
    log.glngLastSampleTime = kMostSamples;
    log.gblnSamplesLoaded = true;
  }
};

const LongLog& TheLog() {
  static const LongLog log;
  return log;
}

/// Each filter keeps so many of a hundred samples.
clsScatterFilters Filters(int percent) {
  const auto& items = TheLog().catalogue.gcolFixedDataItems;
  clsScatterFilters filters;
  for (const int item : kItems)
    filters.AddDirect(
        {items.Item(item).GetRawData(100 * percent - 1), items.Item(item).GetRawData(0), item});
  return filters;
}

void Walk(benchmark::State& state, int percent, bool values) {
  const OpenLog& log = TheLog().log;
  const auto filters = Filters(percent);
  std::size_t points = 0;
  for (auto _ : state) {
    const auto rows = PassingRows(log, RangeOfFilters(log, filters), filters, [](std::int32_t) {});
    points = rows.size();
    if (values)
      for (const int item : {ItemOf(kRPM), ItemOf(kAF)})
        benchmark::DoNotOptimize(ValuesOf(log, item, rows).data());
    benchmark::DoNotOptimize(rows.data());
  }
  state.counters["points"] = static_cast<double>(points);
}

/// Reads as the rest of the program does: a cell, and the value of its stored integer.
void ReadFiveColumnsTwice(benchmark::State& state) {
  const OpenLog& log = TheLog().log;
  for (auto _ : state) {
    double sum = 0;
    for (int time = 0; time < 2; ++time)
      for (const int item : {ItemOf(kSample), kItems[0], kItems[1], kItems[2], kItems[3]}) {
        const clsLogDataItem& it = log.gcolDataItems->Item(item);
        for (int row = 0; row < log.glngDataLog.Rows(); ++row)
          sum += it.GetRawData(log.glngDataLog(item - 1, row));
      }
    benchmark::DoNotOptimize(sum);
  }
}

int Main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const auto add = [](const char* name, auto function, auto... args) {
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
      function(state, args...);
    })->Unit(benchmark::kMillisecond);
  };
  add("ReadFiveColumnsTwice", ReadFiveColumnsTwice);
  add("Walk_100", Walk, 100, false);
  add("Walk_80", Walk, 80, false);
  add("WalkAndValues_100", Walk, 100, true);
  add("WalkAndValues_80", Walk, 80, true);
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const auto ratio = [&](const char* name) {
    return reporter.milliseconds[name] / reporter.milliseconds["ReadFiveColumnsTwice"];
  };
  std::printf(
      "Four filters / reading the five columns twice: %.2f where all samples pass, %.2f where each "
      "filter keeps four "
      "in five\n",
      ratio("Walk_100"), ratio("Walk_80"));
  std::printf("The same with the values of both axes: %.2f and %.2f\n", ratio("WalkAndValues_100"),
              ratio("WalkAndValues_80"));
  return 0;
}

}  // namespace
}  // namespace tarnview::bench

int main(int argc, char** argv) { return tarnview::bench::Main(argc, argv); }
