#include "model/ItemDisplaySettings.h"

#include <algorithm>

#include "model/Catalogue.h"
#include "model/IniKeys.h"

namespace tarnview {
namespace {

using I = clsLogDataItem;

constexpr long kBlack = 0, kWhite = 0xFFFFFF;

const IniKey<I> kKeys[] = {
    {"Colour", IniRule<I>{[](I& item, std::string_view text) {
                            item.lngColour = std::clamp<long>(StringToLong(text), kBlack, kWhite);
                          },
                          [](const I& item) { return std::to_string(item.lngColour); }}},
    {"Style",
     IniRule<I>{[](I& item, std::string_view text) { item.lngLineStyle = StringToLong(text); },
                [](const I& item) { return std::to_string(item.lngLineStyle); }}},
    {"Width", IniRule<I>{[](I& item, std::string_view text) {
                           item.lngLineWidth = kLineWidthLimits.Hold(StringToLong(text));
                         },
                         [](const I& item) { return std::to_string(item.lngLineWidth); }}},
    {"Display", IniFlag<I>{&I::blnDisplay, IniFlagForm::TrueOrNot}},
    {"Display Factor",
     IniNumber<I>{&I::dblSampleDisplayFactor, kLeastDisplayFactor, kMostDisplayFactor}},
};

IniPlace PlaceOf(const char* section, int item) {
  return {section, "Item " + std::to_string(item) + " "};
}

void CopyUpTo(int last, const clsLogDataItems& from, clsLogDataItems& to) {
  for (int n = 1; n <= last; ++n) {
    const I& source = from.Item(n);
    I& item = to.Item(n);
    item.lngColour = source.lngColour;
    item.lngLineStyle = source.lngLineStyle;
    item.lngLineWidth = source.lngLineWidth;
    item.blnDisplay = source.blnDisplay;
    item.dblSampleDisplayFactor = source.dblSampleDisplayFactor;
  }
}

}  // namespace

bool HasItemDisplay(const IniTable& table, const char* section) {
  return table.Find(section, "Item 1 Colour");
}

void ReadItemDisplay(const IniTable& table, const char* section, clsLogDataItems& items) {
  if (!HasItemDisplay(table, section)) return;
  for (int item = 1; item <= std::min(items.Count(), gintColumnCount); ++item)
    ReadIniKeys<I>(kKeys, table, PlaceOf(section, item), items.Item(item));
}

void WriteItemDisplay(const clsLogDataItems& items, IniWriter& file) {
  for (int item = 1; item <= std::min(items.Count(), gintColumnCount); ++item)
    WriteIniKeys<I>(kKeys, PlaceOf("", item), items.Item(item), file);
}

void CopyItemDisplay(const clsLogDataItems& from, clsLogDataItems& to) {
  CopyUpTo(std::min(from.Count(), to.Count()), from, to);
}

void CopyCatalogueDisplay(const clsLogDataItems& from, clsLogDataItems& to) {
  CopyUpTo(std::min({from.Count(), to.Count(), gintColumnCount}), from, to);
}

}  // namespace tarnview
