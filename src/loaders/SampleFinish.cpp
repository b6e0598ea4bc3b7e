#include "loaders/SampleFinish.h"

#include "base/Numbers.h"
#include "base/Units.h"

namespace tarnview {

std::int32_t AtmosphereAsMAP(const LoadContext& context) {
  return RoundToLong(context.settings.gintDefaultAtmosphericPressure *
                     context.items.Item(ItemOf(kMAP)).Factor());
}

BoostOrVacuum BoostOrVacuumOf(std::int32_t MAP, std::int32_t atmosphere) {
  const double above = static_cast<double>(MAP) - atmosphere;
  if (above > 0) return {RoundToLong(above * kPsiPerKPa), 0};
  return {0, RoundToLong(-above * kInHgPerKPa)};
}

void FillBoostAndVacuum(const LoadContext& context, int first) {
  SampleStore& store = context.log.glngDataLog;
  const std::int32_t atmosphere = AtmosphereAsMAP(context);
  std::int32_t MAP = atmosphere;
  BoostOrVacuum found;
  for (int row = first; row < store.Rows(); ++row) {
    if (store(kMAP, row) != MAP) found = BoostOrVacuumOf(MAP = store(kMAP, row), atmosphere);
    store.Set(kBoost, row, found.boost);
    store.Set(kVacuum, row, found.vacuum);
  }
}

void FindFirstPlotSample(const LoadContext& context) {
  const SampleStore& store = context.log.glngDataLog;
  for (int row = 0; row < store.Rows(); ++row) {
    if (store(kCTemp, row) < context.settings.gintPlotFromTemperature) continue;
    context.log.glngFirstPlotSample = row;
    return;
  }
}

void FillWithZero(Column column, const LoadContext& context) {
  SampleStore& store = context.log.glngDataLog;
  store.Fill(column, 0, store.Rows(), context.items.Item(ItemOf(column)).lngStorageOffset);
}

void LowerAirTemp(std::int32_t stored, double factor, OpenLog& log) {
  if (factor * log.glngLowestAirTemp > stored) log.glngLowestAirTemp = RoundToLong(stored / factor);
}

}  // namespace tarnview
