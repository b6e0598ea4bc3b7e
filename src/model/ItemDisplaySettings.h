#pragma once

#include "model/IniFile.h"
#include "model/clsLogDataItems.h"

namespace tarnview {

inline constexpr const char* kItemDisplaySection = "Data Item Display Properties";
inline constexpr const char* kGenericItemDisplaySection = "Generic Data Item Display Properties";

/// Whether the section has anything to say: only with the key "Item 1 Colour".
bool HasItemDisplay(const IniTable& table, const char* section);
/// Lays the section's colour, style, width, visibility and factor over the items; a missing key
/// keeps its value.
void ReadItemDisplay(const IniTable& table, const char* section, clsLogDataItems& items);
void WriteItemDisplay(const clsLogDataItems& items, IniWriter& file);

/// Gives items how others of the same numbers are drawn.
void CopyItemDisplay(const clsLogDataItems& from, clsLogDataItems& to);
/// Those of the catalogue alone, for two logs whose own items have nothing in common.
void CopyCatalogueDisplay(const clsLogDataItems& from, clsLogDataItems& to);

}  // namespace tarnview
