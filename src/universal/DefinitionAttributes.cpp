#include "universal/DefinitionAttributes.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Column.h"
#include "model/SettingLimits.h"

namespace tarnview {
namespace {

constexpr std::int32_t kMostColour = 16777216;  // one more than white
constexpr int kMostPlaces = 5;

using Log = clsDataLog;
using Col = clsDataLogColumn;
using Sample = clsSampleGraphPreset;
using Scatter = clsScatterGraphPreset;
using Filter = clsScatterFilter;

// clang-format off
constexpr Attribute<Log> kHeader[] = {
    {"LINEFREQUENCY",            "dblLineFrequency",            &Log::dblLineFrequency},
    {"DELIMITERASCIICHARACTER",  "lngDelimiterAsciiCharacter",  &Log::lngDelimiterAsciiCharacter},
    {"DATALINESBEFORE",          "lngDataLinesBefore",          &Log::lngDataLinesBefore},
    {"COLUMNHEADERSLINESBEFORE", "lngColumnHeadersLinesBefore", &Log::lngColumnHeadersLinesBefore},
    {"FILEIDTEXT",               "strFileIDText",               &Log::strFileIDText},
    {"FILEIDTEXTCOLUMNSBEFORE",  "lngFileIDTextColumnsBefore",  &Log::lngFileIDTextColumnsBefore},
    {"FILEIDTEXTLINESBEFORE",    "lngFileIDTextLinesBefore",    &Log::lngFileIDTextLinesBefore},
    {"FILEEXTENSION",            "strFileExtension",            &Log::strFileExtension},
    {"NAME",                     "strName",                     &Log::strName},
    {"IGNOREDUPLICATECOLUMNS",   "blnIgnoreDuplicateColumns",   &Log::blnIgnoreDuplicateColumns},
    {"VERSION",                  "strVersion",                  &Log::strVersion},
    {"COMMENTS",                 "strComments",                 &Log::strComments},
    {"AUTOGEARSPEEDFACTOR",      "dblAutoGearSpeedFactor",      &Log::dblAutoGearSpeedFactor},
    {"ENCODING",                 "strEncoding",                 &Log::strEncoding},
    {"DECIMALSIGN",              "strDecimalSign",              &Log::strDecimalSign},
    {"QUOTED",                   "blnQuoted",                   &Log::blnQuoted},
    {"DELIMITERRUNS",            "blnDelimiterRuns",            &Log::blnDelimiterRuns},
    {"COMMENTPREFIX",            "strCommentPrefix",            &Log::strCommentPrefix},
    {"TITLEROWS",                "lngTitleRows",                &Log::lngTitleRows},
    {"UNITSROW",                 "lngUnitsRow",                 &Log::lngUnitsRow},
    {"NOVALUETEXTS",             "strNoValueTexts",             &Log::strNoValueTexts},
    {"TITLESSTART",              "strTitlesStart",              &Log::strTitlesStart},
    {"TITLESFROM",               "strTitlesFrom",               &Log::strTitlesFrom},
    {"TIMEFORM",                 "strTimeForm",                 &Log::strTimeForm},
    {"OWNDATAITEMS",             "blnOwnDataItems",             &Log::blnOwnDataItems},
};

constexpr std::int32_t kAny = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kAll = std::numeric_limits<std::int32_t>::max();

constexpr Attribute<Col> kColumn[] = {
    {"NAME",                   "strName",                 &Col::strName},
    {"COLUMNTITLE",            "strColumnTitle",          &Col::strColumnTitle},
    {"DATAITEMID",             "lngDataItemID",           &Col::lngDataItemID},
    {"COLUMNDECIMALPLACES",    "lngColumnDecimalPlaces",  &Col::lngColumnDecimalPlaces, 0, kMostPlaces, "blnColumnDecimalPlacesSet"},
    {"TYPE",                   "lngType",                 &Col::lngType},
    {"DESCRIPTION",            "strDescription",          &Col::strDescription},
    {"OFFSET",                 "dblOffset",               &Col::dblOffset, kAny, kAll, "blnOffsetSet"},
    {"DISPLAYDECIMALPLACES",   "lngDisplayDecimalPlaces", &Col::lngDisplayDecimalPlaces, 0, kMostPlaces, "blnDisplayDecimalPlacesSet"},
    {"DISPLAYFACTOR",          "dblDisplayFactor",        &Col::dblDisplayFactor, kAny, kAll, "blnDisplayFactorSet"},
    {"DISPLAYZERO",            "blnDisplayZero",          &Col::blnDisplayZero, kAny, kAll, "blnDisplayZeroSet"},
    {"DISPLAYCOLOUR",          "lngColour",               &Col::lngColour, 0, kMostColour, "blnColourSet"},
    {"DISPLAYLINESTYLE",       "lngLineStyle",            &Col::lngLineStyle, kLineStyleLimits.least, kLineStyleLimits.most, "blnLineStyleSet"},
    {"DISPLAYLINEWIDTH",       "lngLineWidth",            &Col::lngLineWidth, kLineWidthLimits.least, kLineWidthLimits.most, "blnLineWidthSet"},
    {"COLUMNMINIMUMVALUE",     "dblMinValue",             &Col::dblMinValue, kAny, kAll, "blnMinValueSet"},
    {"COLUMNMAXIMUMVALUE",     "dblMaxValue",             &Col::dblMaxValue, kAny, kAll, "blnMaxValueSet"},
    {"CONVERSIONFACTOR",       "dblConversionFactor",     &Col::dblConversionFactor, kAny, kAll, "blnConversionFactorSet"},
    {"CONVERSIONOFFSET",       "dblConversionOffset",     &Col::dblConversionOffset, kAny, kAll, "blnConversionOffsetSet"},
    {"CONVERSIONFACTORFIRST",  "blnConversionFactorFirst", &Col::blnConversionFactorFirst},
    {"ALLOWSETTOMAXIMUMVALUE", "blnSetToMaximum",         &Col::blnSetToMaximum},
    {"ALLOWSETTOMINIMUMVALUE", "blnSetToMinimum",         &Col::blnSetToMinimum},
    {"CONVERSIONTYPE",         "lngConversionType",       &Col::lngConversionType},
    {"SMOOTH",                 "blnSmooth",               &Col::blnSmooth},
    {"SIGNED",                 "blnSigned",               &Col::blnSigned},
    {"UNIT",                   "strUnit",                 &Col::strUnit},
    {"TITLEOCCURRENCE",        "lngTitleOccurrence",      &Col::lngTitleOccurrence, 0, kAll},
    {"DISPLAY",                "blnDisplay",              &Col::blnDisplay, kAny, kAll, "blnDisplaySet"},
};

constexpr Attribute<Sample> kSampleGraph[] = {
    {"DATA ITEMS",    "colDataItems",   &Sample::colDataItems, 1, kLastOwnItem},
    {"NAME",          "strName",        &Sample::strName},
    {"FIX GRAPH MAX", "blnFixGraphMax", &Sample::blnFixGraphMax},
    {"GRAPH MAX",     "lngGraphMax",    &Sample::lngGraphMax, kGraphYMaxLimits.least, kGraphYMaxLimits.most},
};

constexpr Attribute<Scatter> kScatterGraph[] = {
    {"POINT COLOUR",   "lngPointColour",   &Scatter::lngPointColour, 0, kMostColour},
    {"POINT SHAPE",    "lngPointShape",    &Scatter::lngPointShape, 0, 9},
    {"POINT SIZE",     "lngPointSize",     &Scatter::lngPointSize, 1, 10},
    {"Y AXIS",         "lngYAxisDataItem", &Scatter::lngYAxisDataItem},
    {"X AXIS",         "lngXAxisDataItem", &Scatter::lngXAxisDataItem},
    {"NAME",           "strName",          &Scatter::strName},
    {"FILE OPEN DRAW", "FileOpenDraw",     &Scatter::FileOpenDraw},
};

constexpr Attribute<Filter> kFilter[] = {
    {"TO",        "dblTo",          &Filter::dblTo},
    {"FROM",      "dblFrom",        &Filter::dblFrom},
    {"DATA ITEM", "lngDataItemSeq", &Filter::lngDataItemSeq},
};
// clang-format on

struct Limits {
  std::int32_t least, most;
};

void Read(std::string& value, std::string_view text, Limits) { value = text; }
void Read(std::int32_t& value, std::string_view text, Limits limits) {
  value = std::clamp(StringToLong(text), limits.least, limits.most);
}
void Read(double& value, std::string_view text, Limits) { value = ValDouble(text); }
void Read(bool& value, std::string_view text, Limits) { value = SameIgnoringCase(text, "Y"); }
void Read(Clamped<kPlainNumber, kDateAndTime>& value, std::string_view text, Limits) {
  value = StringToLong(text);
}

template <class T>
void Read(Settable<T>& value, std::string_view text, Limits limits) {
  T read{};
  Read(read, text, limits);
  value = read;
}

/// Numbers with commas, each once; one outside the limits is dropped in silence.
void Read(std::vector<int>& value, std::string_view text, Limits limits) {
  value.clear();
  std::vector<bool> seen(static_cast<std::size_t>(limits.most) + 1);
  for (const std::string& part : Split(text, ',')) {
    const int number = StringToLong(part);
    if (number < limits.least || number > limits.most || seen[static_cast<std::size_t>(number)])
      continue;
    seen[static_cast<std::size_t>(number)] = true;
    value.push_back(number);
  }
}

template <class Block>
void Set(Block& block, std::span<const Attribute<Block>> attributes, std::string_view key,
         std::string_view text) {
  for (const auto& attribute : attributes)
    if (SameIgnoringCase(attribute.key, key))
      return std::visit(
          [&](auto member) {
            Read(block.*member, text, {attribute.least, attribute.most});
          },
          attribute.member);
}

}  // namespace

std::span<const Attribute<clsDataLog>> HeaderAttributes() { return kHeader; }
std::span<const Attribute<clsDataLogColumn>> ColumnAttributes() { return kColumn; }
std::span<const Attribute<clsSampleGraphPreset>> SampleGraphAttributes() { return kSampleGraph; }
std::span<const Attribute<clsScatterGraphPreset>> ScatterGraphAttributes() { return kScatterGraph; }
std::span<const Attribute<clsScatterFilter>> FilterAttributes() { return kFilter; }

void SetAttribute(clsDataLog& block, std::string_view key, std::string_view text) {
  Set(block, HeaderAttributes(), key, text);
}
void SetAttribute(clsDataLogColumn& block, std::string_view key, std::string_view text) {
  Set(block, ColumnAttributes(), key, text);
}
void SetAttribute(clsSampleGraphPreset& block, std::string_view key, std::string_view text) {
  Set(block, SampleGraphAttributes(), key, text);
}
void SetAttribute(clsScatterGraphPreset& block, std::string_view key, std::string_view text) {
  Set(block, ScatterGraphAttributes(), key, text);
}
void SetAttribute(clsScatterFilter& block, std::string_view key, std::string_view text) {
  Set(block, FilterAttributes(), key, text);
}

}  // namespace tarnview
