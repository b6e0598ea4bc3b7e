#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "base/MessageTable.h"
#include "zones/ZoneSheet.h"

namespace tarnview {

/// What can be copied from a benchmark into a sheet. The numbers are those of the window's boxes; 7
/// and 11 are none.
enum class CopyBox : int {
  Everything = 0,
  Start = 1,
  Idle = 2,
  Wastegate = 3,
  AirTemp = 4,
  BoostTargets = 5,
  AutoTuning = 6,
  Miscellaneous = 8,
  Ignition = 9,
  Fuel = 10,
  FuelZones = 12,
  IgnitionZones = 13,
  General = 14,
};
inline constexpr int kCopyBoxes = 15;
using CopyBoxes = std::array<bool, kCopyBoxes>;  ///< by number

/// "" for a number that is no box.
std::string_view CopyBoxCaption(int box);
/// Air temperatures need two chips that know them, boost a chip that is not normally aspirated.
bool CopyBoxAvailable(CopyBox box, Date sourceDate, Date formDate, bool normallyAspirated);

struct CopiedSheet {
  ZoneSheet sheet;
  std::vector<Message> messages;
};
/// Copies what the boxes name. The chip goes first, so that the rest sees the new one.
CopiedSheet CopyFromBenchmark(ZoneSheet sheet, const ZoneMap& source, const CopyBoxes& boxes);

}  // namespace tarnview
