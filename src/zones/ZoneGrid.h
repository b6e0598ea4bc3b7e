#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "model/ZoneSettings.h"

namespace tarnview {

// The two zone grids: 6 rows by load, numbered from 1, and 16 columns by engine speed, numbered
// from 0.

inline constexpr int kGridRows = 6;
inline constexpr int kGridColumns = 16;
inline constexpr int kFirstGridZone = 32;
inline constexpr int kRPMPerColumn = 500;

enum class ZoneGrid : int { Fuel = 0, Ignition = 1 };

/// Index of a cell; row 0 to 5, column 0 to 15.
constexpr int ZoneCell(ZoneGrid grid, int row, int column) {
  return kFirstGridZone + kGridRows * kGridColumns * static_cast<int>(grid) + kGridColumns * row +
         column;
}

/// "44 kPa 200" for row 2, normally aspirated.
std::string_view ZoneRowHeading(bool normallyAspirated, int row);
/// "05" for column 1: hundreds of RPM.
std::string ZoneColumnHeading(int column);

/// MAP of a row, tenths of kPa. The last normally aspirated row is 960, though its heading says 97
/// kPa: kept on purpose.
std::int32_t RowMAPfromRow(bool normallyAspirated, int row);

/// Two rows around a MAP, and their MAPs in tenths of kPa.
struct ZoneRows {
  int lower = 1, upper = 1;
  std::int32_t lowerMAP = 0, upperMAP = 0;
};
/// The rows below and above a MAP in tenths of kPa, 300 to 960 or (turbo) 200 to 2190; their MAPs
/// are left at 0.
ZoneRows RowAndRowMAPCalc(bool normallyAspirated, std::int32_t MAP);
/// The rows around a sample, any MAP.
ZoneRows CalcZoneRowBoundaries(std::int32_t MAP, bool normallyAspirated, std::string_view O2Sensor,
                               std::string_view autoTuneType, std::int32_t RPM);

/// Row (1 to 6) of a sample's zone, from its MAP in kPa.
int ZoneRowOfSample(bool normallyAspirated, std::int32_t kPa);
/// The zone number of a row and an engine speed: row 2 at 1500 RPM is 215.
std::int32_t ZoneNumber(int row, std::int32_t RPM);
/// Column of an engine speed, held to the grid.
int ZoneColumnOfSample(std::int32_t RPM);

}  // namespace tarnview
