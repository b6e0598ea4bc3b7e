#pragma once

#include <cstdint>
#include <string>

#include "base/Dates.h"
#include "base/Records.h"
#include "model/ZoneSettings.h"

namespace tarnview {

/// A named set of zone settings that a log is compared with or that is copied from.
class clsBenchmark {
 public:
  std::string strName;
  std::string File;  ///< where the settings came from, or a name when there is no file
  double EngineSize = 1.6;
  Date ChipDate = MakeDate(2000, 1, 1);
  std::int16_t ChipVersion = 2;
  std::int16_t AtmosphericPressure = 75;

  /// One zone; index 0 to 255.
  std::int16_t& ZoneSettings(int index) { return zones_[static_cast<std::size_t>(index)]; }
  std::int16_t ZoneSettings(int index) const { return zones_[static_cast<std::size_t>(index)]; }
  void SetZoneSettingsDirect(const tarnview::ZoneSettings& zones) { zones_ = zones; }
  const tarnview::ZoneSettings& GetZoneSettingsDirect() const { return zones_; }

  clsBenchmark Duplicate() const { return *this; }

 private:
  tarnview::ZoneSettings zones_{};
};

/// The user's benchmarks, in their order.
class clsBenchmarks : public Records<clsBenchmark> {
 public:
  static constexpr const char* NEW_NAME = "New Benchmark";

  static clsBenchmark BlankPreset() {
    clsBenchmark benchmark;
    benchmark.strName = NEW_NAME;
    return benchmark;
  }
  clsBenchmarks Duplicate() const { return *this; }
};

}  // namespace tarnview
