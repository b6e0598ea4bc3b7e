#include "zoneeditor/ZoneComparison.h"

namespace tarnview {

std::vector<std::string> ZoneComparison::Names() const {
  std::vector<std::string> names;
  if (own_) names = {"Lambda/Knock Zone Changes", "Original Zone Settings"};
  for (const clsBenchmark& benchmark : benchmarks_) names.push_back(benchmark.strName);
  return names;
}

const clsBenchmark* ZoneComparison::Benchmark() const {
  const int position = chosen_ - OwnSets() + 1;
  if (position >= 1 && position <= benchmarks_.Count()) return &benchmarks_.Item(position);
  return nullptr;
}

const ZoneSettings* ZoneComparison::Zones() const {
  if (const clsBenchmark* benchmark = Benchmark()) return &benchmark->GetZoneSettingsDirect();
  if (chosen_ < 0 || chosen_ >= OwnSets()) return nullptr;
  if (chosen_ == 0) return &own_->changes;
  return &own_->original;
}

ZoneMap ZoneComparison::Map(const ZoneMap& form) const {
  if (const clsBenchmark* benchmark = Benchmark()) return MapOf(*benchmark);
  ZoneMap map = form;
  map.strNotes.clear();
  if (const ZoneSettings* zones = Zones()) map.zones = *zones;
  return map;
}

}  // namespace tarnview
