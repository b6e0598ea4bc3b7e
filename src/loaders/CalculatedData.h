#pragma once

#include "model/ConversionTables.h"
#include "model/OpenLog.h"

namespace tarnview {

/// The columns that an FM Link log gets from its other columns and the zone settings, for all
/// samples: zone, knock threshold, air temperature retard, boost, vacuum, converted auxiliary
/// inputs, zone values, air/fuel target.
void GenerateCalculatedData(OpenLog& log, const ConversionTables& tables);

}  // namespace tarnview
