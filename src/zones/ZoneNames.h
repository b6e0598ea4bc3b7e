#pragma once

#include <string>
#include <string_view>

namespace tarnview {

/// The ECU's own name of a zone: index 4 is "z4", 240 is "z800".
std::string ZoneName(int index);
/// The name of a grid's cell by grid, hundreds of the row and hundreds of RPM: index 112 is
/// "zf600", 208 "zi600";
/// "" outside the grids.
std::string GridCellName(int index);
/// The index of either name, in any case; -1 for a text that names no zone.
int ZoneIndex(std::string_view name);

}  // namespace tarnview
