#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zones/ZoneMap.h"
#include "zones/clsBenchmark.h"

namespace tarnview {

/// The zone sets that a log brings beside its own.
struct ComparisonZones {
  ZoneSettings changes{};   ///< "Lambda/Knock Zone Changes"
  ZoneSettings original{};  ///< "Original Zone Settings"
};

/// What the editor compares with: the log's own two sets, where there are any, and the benchmarks.
class ZoneComparison {
 public:
  ZoneComparison(const std::optional<ComparisonZones>& own, const clsBenchmarks& benchmarks)
      : own_(own), benchmarks_(benchmarks) {}

  std::vector<std::string> Names() const;
  /// By place in Names; one outside it chooses nothing.
  void Choose(int entry) { chosen_ = entry; }
  bool IsBenchmark() const { return Benchmark() != nullptr; }

  /// The zones that are chosen; nullptr for none.
  const ZoneSettings* Zones() const;
  /// With their chip, which is `form`'s for the log's own sets; `form` itself where nothing is
  /// chosen.
  ZoneMap Map(const ZoneMap& form) const;

 private:
  int OwnSets() const {
    if (own_) return 2;
    return 0;
  }
  const clsBenchmark* Benchmark() const;

  const std::optional<ComparisonZones>& own_;
  const clsBenchmarks& benchmarks_;
  int chosen_ = -1;
};

}  // namespace tarnview
