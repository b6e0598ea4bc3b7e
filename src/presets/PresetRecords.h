#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/IniFile.h"
#include "model/clsLogDataItems.h"
#include "presets/clsSampleGraphPreset.h"
#include "presets/clsScatterGraphPreset.h"

namespace tarnview {

// The record of a preset, "Graph n Name=..." and so on, as the settings file and the files that
// users exchange hold it.

/// A preset as it was read, and the numbers in it that are no data item: a list drops them, an axis
/// or a filter takes item 1 instead.
template <class Preset>
struct PresetRead {
  Preset preset;
  std::vector<int> unknownItems;
};

/// The record `lngGraphNo` of a section ("" for lines outside any). A missing key counts as an
/// empty text; without the key of the family, the family is 0.
PresetRead<clsSampleGraphPreset> ReadSamplePreset(const IniTable& table, const std::string& section,
                                                  int lngGraphNo);
/// The same; filters from 1 up to the first number that has no item. A filter's bound is checked
/// against the items of its preset's family.
PresetRead<clsScatterGraphPreset> ReadScatterPreset(const IniTable& table,
                                                    const std::string& section, int lngGraphNo,
                                                    const clsLogDataItems& fixedItems,
                                                    const clsLogDataItems& universalItems);

void WriteToFile(const clsSampleGraphPreset& preset, IniWriter& file, int lngGraphNo,
                 bool blnWriteFamily);
void WriteToFile(const clsScatterGraphPreset& preset, IniWriter& file, int lngGraphNo,
                 bool blnWriteFamily);

inline constexpr const char* kFilterItem = "Data Item";

/// Reads one line of a filter (kFilterItem, "From" or "To"; others are passed over). A number that
/// is no item becomes 1. The lower bound is checked against the item as read so far.
void ReadFilterField(std::string_view field, std::string_view text, const clsLogDataItems& objItems,
                     clsScatterFilter& filter);

/// The lower bound itself, or 0: for a number that is no item, and for a list item where it is no
/// index of the list.
double ValidateFilterFrom(double dblFrom, int lngItem, const clsLogDataItems& objItems);

}  // namespace tarnview
