#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "zones/ZoneSheet.h"

namespace tarnview {

// What can be done to a sheet: each function gives the sheet after it. Cells are zones, 32 to 223
// of the two grids and those of the three small ones.

/// zf600, zf605, zi600 and zi605: settings of closed loop boost control on a turbo chip, cells on
/// others.
bool IsClosedLoopCell(int zone);
bool IsBlackedOut(const ZoneSheet& sheet, int zone);

// The fields.

ZoneSheet WithField(ZoneSheet sheet, int zone, std::string_view text);
/// Trim in degrees.
ZoneSheet WithTrim(ZoneSheet sheet, std::string_view degrees);
/// The numbers stay as they are shown, held to the new ranges.
ZoneSheet WithEngineSize(ZoneSheet sheet, double size);
ZoneSheet WithChipDate(ZoneSheet sheet, Date date);
/// A chip that lacks the box keeps it clear.
ZoneSheet WithTick(ZoneSheet sheet, Tick tick, bool on);
ZoneSheet WithAutoTuneType(ZoneSheet sheet, std::string_view type);
/// A sensor that is not on the list gives the first that is.
ZoneSheet WithSensor(ZoneSheet sheet, std::string_view sensor);
/// The sensor that a map's bits name; "NB" on old chips.
std::string_view SensorText(const ZoneMap& map);
/// Both erase the values: 100 kPa, or 0 per cent.
ZoneSheet WithBoostTargets(ZoneSheet sheet, bool boostTargets);

/// What follows from the chip: boxes that it lacks are clear, z4 is in its range, type and sensor
/// are on their lists.
ZoneSheet WithChipRules(ZoneSheet sheet);
std::vector<std::string_view> O2SensorsOf(const ZoneSheet& sheet);
/// A mean of 100 or more of z725 to z775 is one of pressures.
bool MeanSaysBoostTargets(const ZoneSheet& sheet);

// The cells. All skip blacked-out ones.

ZoneSheet WithCell(ZoneSheet sheet, int zone, std::string_view text);
/// The first boost target in all the others.
ZoneSheet WithFirstBoostTargetInAll(ZoneSheet sheet);
ZoneSheet WithOffset(ZoneSheet sheet, std::span<const int> cells, int offset);
/// Each cell takes the benchmark's value, whatever the range.
ZoneSheet WithCellsOf(ZoneSheet sheet, std::span<const int> cells, const ZoneSettings& benchmark);
/// Each cell takes its difference to the benchmark, within the range.
ZoneSheet WithDifference(ZoneSheet sheet, std::span<const int> cells,
                         const ZoneSettings& benchmark);
/// Each cell takes the number of the same place, within the range.
ZoneSheet WithNumbers(ZoneSheet sheet, std::span<const int> cells, std::span<const int> numbers);

/// A block of cells, row by row.
struct CellBlock {
  std::vector<int> cells;
  int columns = 0;
};
/// Between its four corners, in a straight line along each edge.
ZoneSheet WithInterpolation(ZoneSheet sheet, const CellBlock& block);
/// Each cell takes the mean of itself, twice, and its neighbours in the block.
ZoneSheet WithSmoothing(ZoneSheet sheet, const CellBlock& block);

}  // namespace tarnview
