#pragma once

#include "loaders/LoadContext.h"
#include "model/Column.h"

namespace tarnview {

// What samples get from their other columns.

/// The default atmospheric pressure as "MAP" stores it.
std::int32_t AtmosphereAsMAP(const LoadContext& context);

/// A stored "MAP" above the atmosphere as stored "Boost", one at or below it as stored "Vacuum";
/// the other is 0.
struct BoostOrVacuum {
  std::int32_t boost = 0, vacuum = 0;
};
BoostOrVacuum BoostOrVacuumOf(std::int32_t MAP, std::int32_t atmosphere);

/// "Boost" and "Vacuum" of the samples from `first` on, from their "MAP".
void FillBoostAndVacuum(const LoadContext& context, int first);

/// Sets glngFirstPlotSample: the first sample whose "C Temp" is at least the setting.
void FindFirstPlotSample(const LoadContext& context);

/// Fills a column that the log does not carry with its item's zero, lngStorageOffset.
void FillWithZero(Column column, const LoadContext& context);

/// Lowers glngLowestAirTemp by a stored "A Temp", of which `factor` are a degree.
void LowerAirTemp(std::int32_t stored, double factor, OpenLog& log);

}  // namespace tarnview
