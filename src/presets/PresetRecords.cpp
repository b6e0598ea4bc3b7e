#include "presets/PresetRecords.h"

#include <algorithm>

#include "model/Column.h"
#include "model/IniKeys.h"

namespace tarnview {
namespace {

using Sample = clsSampleGraphPreset;
using Scatter = clsScatterGraphPreset;
using Filter = clsScatterFilter;

constexpr int kMostColour = 0x1000000;

bool IsItem(int number) { return number >= 1 && number <= kColumnCount; }

template <class Preset>
const IniKey<Preset> kFamily[] = {
    {"Log Family",
     IniRule<Preset>{
         [](Preset& preset, std::string_view text) { preset.lngLogFamily = StringToLong(text); },
         [](const Preset& preset) { return std::to_string(preset.lngLogFamily); }}}};

const IniKey<Sample> kSampleKeys[] = {
    {"Name", IniText<Sample>{&Sample::strName}},
    {"Data Items",
     IniRule<Sample>{
         [](Sample& preset, std::string_view text) { preset.colDataItems = ReadItemNumbers(text); },
         [](const Sample& preset) { return ItemNumbersText(preset.colDataItems); }}},
    {"Fix Graph Max", IniFlag<Sample>{&Sample::blnFixGraphMax, IniFlagForm::OffUnlessY}},
    {"Graph Max", IniWhole<Sample>{&Sample::lngGraphMax}},
};

const IniKey<Scatter> kScatterKeys[] = {
    {"Name", IniText<Scatter>{&Scatter::strName}},
    {"Point Colour", IniWhole<Scatter>{&Scatter::lngPointColour, 0, kMostColour}},
    {"Point Shape", IniWhole<Scatter>{&Scatter::lngPointShape, 0, 9}},
    {"Point Size", IniWhole<Scatter>{&Scatter::lngPointSize, 1, 10}},
    {"X Axis", IniWhole<Scatter>{&Scatter::lngXAxisDataItem}},
    {"Y Axis", IniWhole<Scatter>{&Scatter::lngYAxisDataItem}},
    {"File Open Draw", IniFlag<Scatter>{&Scatter::FileOpenDraw, IniFlagForm::OffUnlessY}},
};

template <double Filter::*Bound>
constexpr IniRule<Filter> kBound{[](Filter& filter, std::string_view text) {
                                   if (text.empty())
                                     filter.*Bound = kBoundNotSet;
                                   else
                                     filter.*Bound = StringToDouble(text);
                                 },
                                 [](const Filter& filter) {
                                   if (filter.*Bound == kBoundNotSet) return std::string();
                                   return ShortestText(filter.*Bound);
                                 }};

constexpr const char* kFilterFrom = "From";

const IniKey<Filter> kFilterKeys[] = {
    {kFilterItem, IniWhole<Filter>{&Filter::lngDataItemSeq}},
    {kFilterFrom, kBound<&Filter::dblFrom>},
    {"To", kBound<&Filter::dblTo>},
};

std::string Number(const char* name, int number) { return name + std::to_string(number) + " "; }
IniPlace GraphPlace(const std::string& section, int number) {
  return {section, Number("Graph ", number)};
}
IniPlace FilterPlace(const IniPlace& graph, int number) {
  return {graph.section, graph.prefix + Number("Filter ", number)};
}

/// Notes a number that is no item and puts the first one in its place.
void CheckItem(std::int32_t& item, std::vector<int>& unknown) {
  if (IsItem(item)) return;
  unknown.push_back(item);
  item = 1;
}

template <class Preset>
void ReadRecord(std::span<const IniKey<Preset>> keys, const IniTable& table, const IniPlace& place,
                Preset& preset) {
  ReadIniKeys<Preset>(keys, table, place, preset, IniMissing::IsEmpty);
  ReadIniKeys<Preset>(kFamily<Preset>, table, place, preset);
}

template <class Preset>
void WriteRecord(std::span<const IniKey<Preset>> keys, const Preset& preset, int number,
                 bool family, IniWriter& file) {
  WriteIniKeys<Preset>(keys, GraphPlace("", number), preset, file);
  if (family) WriteIniKeys<Preset>(kFamily<Preset>, GraphPlace("", number), preset, file);
}

}  // namespace

PresetRead<Sample> ReadSamplePreset(const IniTable& table, const std::string& section,
                                    int lngGraphNo) {
  PresetRead<Sample> read;
  ReadRecord<Sample>(kSampleKeys, table, GraphPlace(section, lngGraphNo), read.preset);
  auto& items = read.preset.colDataItems;
  const auto unknown = std::stable_partition(items.begin(), items.end(), IsItem);
  read.unknownItems.assign(unknown, items.end());
  items.erase(unknown, items.end());
  return read;
}

PresetRead<Scatter> ReadScatterPreset(const IniTable& table, const std::string& section,
                                      int lngGraphNo, const clsLogDataItems& fixedItems,
                                      const clsLogDataItems& universalItems) {
  PresetRead<Scatter> read;
  Scatter& preset = read.preset;
  const IniPlace graph = GraphPlace(section, lngGraphNo);
  ReadRecord<Scatter>(kScatterKeys, table, graph, preset);
  CheckItem(preset.lngXAxisDataItem, read.unknownItems);
  CheckItem(preset.lngYAxisDataItem, read.unknownItems);
  const auto& items = preset.lngLogFamily == kUniversalLogFamily ? universalItems : fixedItems;
  for (int f = 1; table.Find(section, FilterPlace(graph, f).KeyOf(kFilterItem)); ++f) {
    Filter filter;
    ReadIniKeys<Filter>(kFilterKeys, table, FilterPlace(graph, f), filter, IniMissing::IsEmpty);
    CheckItem(filter.lngDataItemSeq, read.unknownItems);
    filter.dblFrom = ValidateFilterFrom(filter.dblFrom, filter.lngDataItemSeq, items);
    preset.objFilters.AddDirect(filter);
  }
  return read;
}

void WriteToFile(const Sample& preset, IniWriter& file, int lngGraphNo, bool blnWriteFamily) {
  WriteRecord<Sample>(kSampleKeys, preset, lngGraphNo, blnWriteFamily, file);
}

void WriteToFile(const Scatter& preset, IniWriter& file, int lngGraphNo, bool blnWriteFamily) {
  WriteRecord<Scatter>(kScatterKeys, preset, lngGraphNo, blnWriteFamily, file);
  int f = 0;
  for (const Filter& filter : preset.objFilters)
    WriteIniKeys<Filter>(kFilterKeys, FilterPlace(GraphPlace("", lngGraphNo), ++f), filter, file);
}

void ReadFilterField(std::string_view field, std::string_view text, const clsLogDataItems& objItems,
                     Filter& filter) {
  for (const auto& key : kFilterKeys)
    if (key.name == field) std::visit(detail::IniReader<Filter>{filter, text}, key.kind);
  if (field == kFilterItem && !IsItem(filter.lngDataItemSeq)) filter.lngDataItemSeq = 1;
  if (field == kFilterFrom)
    filter.dblFrom = ValidateFilterFrom(filter.dblFrom, filter.lngDataItemSeq, objItems);
}

double ValidateFilterFrom(double dblFrom, int lngItem, const clsLogDataItems& objItems) {
  if (lngItem < 1 || lngItem > objItems.Count()) return 0;
  const clsLogDataItem& item = objItems.Item(lngItem);
  const bool inList = dblFrom >= 0 && dblFrom < static_cast<double>(item.varDescList.size());
  if (item.intType == kListItem && !inList) return 0;
  return dblFrom;
}

}  // namespace tarnview
