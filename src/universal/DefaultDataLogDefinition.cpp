#include "universal/DefaultDataLogDefinition.h"

#include <optional>
#include <vector>

namespace tarnview {
namespace {

struct Line {
  std::int32_t colour, style, width;
};

/// What becomes of a field's number, and which values are refused.
struct Conversion {
  std::optional<double> factor = {}, offset = {};
  bool factorFirst = false;
  std::optional<double> minimum = {}, maximum = {};
};

struct ColumnRow {
  const char* name;
  const char* description;
  const char* title;  ///< nullptr: the description
  int item;
  int places;
  std::optional<double> displayFactor;
  Conversion conversion = {};
  std::optional<Line> line = {};
};

constexpr double kMilesPerKilometre = 0.6214;
constexpr double kAtmosphere = 100;       // kPa, the log's zero of boost and vacuum
constexpr double kKPaPerPsi = 6.895;      // NIST SP 811: 6.894757
constexpr double kKPaPerMmHg = 0.133333;  // NIST SP 811: 0.1333224

// clang-format off
constexpr ColumnRow kColumns[] = {
    {"Secs",      "Seconds",                     "Timestamp",           63, 3, {},   {0.001, {}}},
    {"C Temp",    "Coolant Temp (C)",            nullptr,               23, 0, 1},
    {"AFR",       "AFR (:1)",                    nullptr,               36, 1, 10},
    {"RPM",       "Engine Speed (RPM)",          nullptr,                3, 0, 0.01},
    {"TPS",       "TPS (%)",                     nullptr,               17, 1, 1},
    {"Boost",     "Boost (PSI)",                 nullptr,               37, 1, 10},
    {"Speed",     "Vehicle Speed (mph)",         "Vehicle Speed (KPH)", 24, 0, 1,    {kMilesPerKilometre, {}}},
    {"Knock",     "Knock Ramp (V)",              nullptr,               20, 1, 10},
    {"A Temp",    "Air Temp (C)",                nullptr,               31, 0, 1},
    {"DC%",       "Duty Cycle (%)",              nullptr,               14, 1, 1},
    {"Knock R",   "Knock Retard (deg.)",         "Knock Ret. (Deg.)",   62, 1, 1,    {}, Line{8404992, 1, 3}},
    {"BV%",       "Boost Valve (%)",             nullptr,               10, 1, 1},
    {"RPM Cell",  "RPM Cell (X)",                "Cell X (N)",          55, 0, 10,   {}, Line{8388736, 1, 2}},
    {"Load Cell", "Load Cell (Y)",               "Cell Y (N)",          56, 0, 10,   {}, Line{8388863, 1, 3}},
    {"FP",        "Fuel Pulse (ms)",             "Fuel Pulse (MS)",     13, 1, 10},
    {"Vac",       "Vacuum (mmHg)",               nullptr,               38, 0, 0.1},
    {"Adv",       "Advance (deg.)",              nullptr,               21, 0, 1},
    // Of boost and vacuum one is always idle. Each refuses values on the far side of atmospheric
    // pressure, so that both feed one item and never spoil what the other one wrote.
    {"MAP",       "Manifold Air Pressure (kPa)", "boost (psi)",          5, 0, 1,    {kKPaPerPsi, kAtmosphere, true, 99, {}}},
    {"MAP",       "Manifold Air Pressure (kPa)", "vacuum (mmHg)",        5, 0, 1,    {-kKPaPerMmHg, kAtmosphere, true, {}, 100}},
};

struct SampleRow {
  const char* name;
  std::vector<int> items;
};

const std::vector<SampleRow>& SampleRows() {
  static const std::vector<SampleRow> rows{
      {"Overview",              {20, 5, 3, 17, 37, 38}},
      {"A/F Investigation",     {31, 36, 37, 23, 14, 13, 20, 62, 5, 3, 17, 38}},
      {"Knock Investigation 1", {21, 14, 20, 5, 36, 3, 17}},
      {"Knock Investigation 2", {31, 21, 13, 20, 5, 3, 17, 10}},
      {"Power Graphing",        {31, 36, 37, 23, 21, 14, 20, 5, 45, 3, 24, 46, 17}},
      {"Clear All Checkboxes",  {}},
  };
  return rows;
}

struct FilterRow {
  int item = 0;  ///< 0: none
  double from = kBoundNotSet, to = kBoundNotSet;
};

struct ScatterRow {
  const char* name;
  int y;
  std::int32_t colour;
  int shape;
  FilterRow filters[2];
};

constexpr ScatterRow kScatterRows[] = {
    {"Air Temperature",         31, 0xA00000, 4, {{31, 40}}},
    {"Boost Overshoot (MAP)",    5, 0xFFFF00, 8, {{5, 150}}},
    {"Boost Overshoot (Boost)", 37, 0x0080FF, 8, {{37, 7}}},
    {"Coolant Temperature",     23, 0x00FF00, 6, {{23, 95}}},
    {"Knock Profile",           20, 0x0000FF, 6, {{20, 0.5}}},
    {"A/F Boost",               36, 360000,   8, {{5, 100}}},
    {"A/F Cruise",              36, 360000,   8, {{5, 60, 100}}},
    {"A/F Idle",                36, 360000,   8, {{5, kBoundNotSet, 60}, {3, kBoundNotSet, 1200}}},
    {"Power",                   45, 0x0000FF, 3, {{45, 1}}},
    {"Spool Up (MAP)",           5, 0xFFFF00, 3, {{5, 100}}},
    {"Spool Up (Boost)",        37, 0x0080FF, 3, {{37, 0.01}}},
    {"Torque",                  46, 0xFF0000, 3, {{46, 1}}},
};
// clang-format on

clsDataLogColumn ColumnOf(const ColumnRow& row) {
  clsDataLogColumn column;
  column.strName = row.name;
  column.strDescription = row.description;
  if (row.title)
    column.strColumnTitle = row.title;
  else
    column.strColumnTitle = row.description;
  column.lngDataItemID = row.item;
  column.lngType = kNumericColumn;
  column.lngColumnDecimalPlaces = row.places;
  column.lngDisplayDecimalPlaces = row.places;
  column.dblOffset = 0;
  if (row.displayFactor) column.dblDisplayFactor = *row.displayFactor;
  const Conversion& conversion = row.conversion;
  if (conversion.factor) column.dblConversionFactor = *conversion.factor;
  if (conversion.offset) column.dblConversionOffset = *conversion.offset;
  column.blnConversionFactorFirst = conversion.factorFirst;
  if (conversion.minimum) column.dblMinValue = *conversion.minimum;
  if (conversion.maximum) column.dblMaxValue = *conversion.maximum;
  column.blnSetToMinimum = !conversion.minimum;
  column.blnSetToMaximum = !conversion.maximum;
  if (row.line) {
    column.lngColour = row.line->colour;
    column.lngLineStyle = row.line->style;
    column.lngLineWidth = row.line->width;
  }
  return column;
}

clsSampleGraphPreset PresetOf(const SampleRow& row) {
  clsSampleGraphPreset preset;
  preset.strName = row.name;
  preset.colDataItems = row.items;
  preset.lngGraphMax = 10;
  preset.lngLogFamily = kUniversalLogFamily;
  return preset;
}

clsScatterGraphPreset PresetOf(const ScatterRow& row) {
  constexpr int kRPMItem = 3, kPointSize = 6;
  clsScatterGraphPreset preset;
  preset.strName = row.name;
  preset.lngXAxisDataItem = kRPMItem;
  preset.lngYAxisDataItem = row.y;
  preset.lngPointColour = row.colour;
  preset.lngPointShape = row.shape;
  preset.lngPointSize = kPointSize;
  preset.lngLogFamily = kUniversalLogFamily;
  for (const FilterRow& filterRow : row.filters) {
    if (filterRow.item == 0) continue;
    clsScatterFilter filter;
    filter.lngDataItemSeq = filterRow.item;
    filter.dblFrom = filterRow.from;
    filter.dblTo = filterRow.to;
    preset.objFilters.AddDirect(filter);
  }
  return preset;
}

}  // namespace

clsDataLog DefaultDataLogDefinition() {
  clsDataLog definition;
  definition.strName = "Hydra Nemesis 2.1 (MX-5 Miata)";
  definition.strFileExtension = "csv";
  definition.strFileIDText = "timestamp";
  definition.lngDataLinesBefore = 1;
  definition.lngDelimiterAsciiCharacter = ',';
  definition.dblLineFrequency = 10;
  definition.strVersion = "1.00";
  definition.strComments =
      "For use with data logs generated from Hydra Nemesis ECU software version x for Mazda MX-5 "
      "Miata"
      " (www.hydraems.com)";
  for (const ColumnRow& row : kColumns) definition.objColumns.AddDirect(ColumnOf(row));
  for (const SampleRow& row : SampleRows())
    definition.objPresetSampleGraphs.AddDirect(PresetOf(row));
  for (const ScatterRow& row : kScatterRows)
    definition.objPresetScatterGraphs.AddDirect(PresetOf(row));
  return definition;
}

}  // namespace tarnview
