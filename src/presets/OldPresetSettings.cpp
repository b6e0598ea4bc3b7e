// Presets as earlier versions of the settings file held them.

#include <algorithm>
#include <array>
#include <string_view>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Column.h"
#include "model/IniKeys.h"
#include "presets/PresetRecords.h"
#include "presets/PresetSettings.h"

namespace tarnview {
namespace {

constexpr const char* kSeriesSection = "Preset Graph Series";
constexpr const char* kScatterSection = "Preset Scatter Graphs";
/// Those versions knew one family of logs, and drew 10 high where nothing was fixed.
constexpr int kFamily = 1;
constexpr int kGraphMax = 10;

/// The item of each bit of a series' mask, bit 0 first.
constexpr std::array kBitItems{kEGR, kCTemp, kIAdv,  kInjW, kKnock, kMAP,
                               kO2,  kRPM,   kATemp, kTPS,  kIAC,   kWGPercent};

clsSampleGraphPreset SeriesPreset(std::string_view value) {
  clsSampleGraphPreset preset;
  const auto comma = value.find(',');
  const std::int32_t mask = StringToLong(value.substr(0, comma));
  if (comma != std::string_view::npos) preset.strName = Trim(value.substr(comma + 1));
  for (std::size_t bit = kBitItems.size(); bit-- > 0;)
    if (mask > 0 && (mask >> bit & 1) != 0) preset.colDataItems.push_back(ItemOf(kBitItems[bit]));
  preset.lngGraphMax = kGraphMax;
  preset.lngLogFamily = kFamily;
  return preset;
}

struct NamedNumber {
  std::string_view name;
  std::int32_t number;
};

constexpr NamedNumber kItemNames[] = {
    {"EGR", ItemOf(kEGR)},       {"TPS", ItemOf(kTPS)},       {"C. Temp", ItemOf(kCTemp)},
    {"IAC", ItemOf(kIAC)},       {"Ignition", ItemOf(kIAdv)}, {"WG%", ItemOf(kWGPercent)},
    {"InjW", ItemOf(kInjW)},     {"Speed", ItemOf(kSpeed)},   {"Knock", ItemOf(kKnock)},
    {"A. Temp", ItemOf(kATemp)}, {"MAP", ItemOf(kMAP)},       {"Inj%", ItemOf(kInjPercent)},
    {"O2", ItemOf(kO2)},         {"RPM", ItemOf(kRPM)},
};

constexpr NamedNumber kColourNames[] = {
    {"Blue", 0xFF0000}, {"Cyan", 0xFFFF00},  {"Green", 0x00FF00},  {"Magenta", 0xFF00FF},
    {"Red", 0x0000FF},  {"White", 0xFFFFFF}, {"Yellow", 0x00FFFF},
};

template <std::size_t N>
std::int32_t NumberOf(const NamedNumber (&names)[N], std::string_view name,
                      std::int32_t otherwise) {
  const auto found = std::find_if(std::begin(names), std::end(names),
                                  [&](const auto& row) { return row.name == name; });
  if (found == std::end(names)) return otherwise;
  return found->number;
}

std::int32_t ItemNamed(std::string_view name) { return NumberOf(kItemNames, name, ItemOf(kRPM)); }

using Scatter = clsScatterGraphPreset;

void ReadXAxis(Scatter& preset, std::string_view text) {
  preset.lngXAxisDataItem = ItemNamed(text);
}
void ReadYAxis(Scatter& preset, std::string_view text) {
  preset.lngYAxisDataItem = ItemNamed(text);
}
void ReadColour(Scatter& preset, std::string_view text) {
  preset.lngPointColour = NumberOf(kColourNames, text, 0);
}

const IniKey<Scatter> kKeys[] = {
    // clang-format off
    {"Name", IniText<Scatter>{&Scatter::strName}},
    {"XAxis", IniRule<Scatter>{ReadXAxis, {}}},
    {"YAxis", IniRule<Scatter>{ReadYAxis, {}}},
    {"Point Size", IniWhole<Scatter>{&Scatter::lngPointSize, 1, 10}},
    {"Point Shape", IniWhole<Scatter>{&Scatter::lngPointShape, 0, 9}},
    {"Point Colour", IniRule<Scatter>{ReadColour, {}}},
    // clang-format on
};

double Bound(std::string_view text) {
  if (text.empty()) return kBoundNotSet;
  return StringToDouble(text);
}

/// Adds the filter of that name ("Filter ", "Filter 2 ") unless its type is "None" or not there.
void ReadFilter(const IniTable& table, const std::string& prefix, const clsLogDataItems& items,
                Scatter& preset) {
  const auto value = [&](const char* name) {
    return GetINIValue(table, kScatterSection, prefix + name).value_or(std::string_view());
  };
  const auto type = value("Data Type");
  if (type.empty() || type == "None") return;
  clsScatterFilter filter;
  filter.lngDataItemSeq = ItemNamed(type);
  filter.dblFrom = ValidateFilterFrom(Bound(value("From")), filter.lngDataItemSeq, items);
  filter.dblTo = Bound(value("To"));
  preset.objFilters.AddDirect(filter);
}

}  // namespace

void ReadOldSamplePresets(const IniTable& table, clsSampleGraphPresets& presets) {
  for (int n = 1;; ++n) {
    const std::string* value = table.Find(kSeriesSection, "Graph Series " + std::to_string(n));
    if (!value || value->empty()) return;
    presets.AddDirect(SeriesPreset(*value));
  }
}

void ReadOldScatterPresets(const IniTable& table, const clsLogDataItems& items,
                           clsScatterGraphPresets& presets) {
  for (int n = 1;; ++n) {
    Scatter preset;
    const IniPlace place{kScatterSection, "Graph " + std::to_string(n) + " "};
    ReadIniKeys<Scatter>(kKeys, table, place, preset, IniMissing::IsEmpty);
    if (preset.strName.empty()) return;
    for (const char* filter : {"Filter ", "Filter 2 "})
      ReadFilter(table, place.prefix + filter, items, preset);
    preset.lngLogFamily = kFamily;
    presets.AddDirect(std::move(preset));
  }
}

}  // namespace tarnview
