#pragma once

#include "model/IniFile.h"
#include "model/Settings.h"
#include "zones/clsBenchmark.h"

namespace tarnview {

/// The benchmarks of the section "Benchmarks"; what one lacks of a chip is the user's own. A file
/// without any gives "Emergency Benchmark", with all zones 0.
void ReadBenchmarks(const IniTable& table, const Settings& settings, clsBenchmarks& benchmarks);
void WriteBenchmarks(const clsBenchmarks& benchmarks, IniWriter& file);

}  // namespace tarnview
