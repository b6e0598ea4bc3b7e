#include "universal/DefinitionFaults.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Column.h"
#include "model/IniKeys.h"

namespace tarnview {
namespace {

using Texts = std::vector<std::string>;

std::string Line(const char* label, const std::string& value) { return label + value; }
std::string Line(const char* label, double value) { return label + NumberText(value); }
std::string Line(const char* label, std::int32_t value) { return label + std::to_string(value); }

/// One thing that can be wrong with a block, its message, and the lines of the message's detail.
template <class Subject>
struct Check {
  Message message;
  bool (*fails)(const Subject&);
  Texts (*detail)(const Subject&);
};

template <class Subject>
void Run(std::span<const Check<Subject>> checks, const Subject& subject) {
  for (const auto& check : checks)
    if (check.fails(subject))
      throw DefinitionFault(check.message, DetailText(check.detail(subject)));
}

// The header.

struct HeaderBlock {
  const clsDataLog& log;
  const std::string& path;
};

bool LacksHeaderData(const HeaderBlock& h) {
  return h.log.strName.empty() || h.log.strFileExtension.empty() ||
         h.log.lngDelimiterAsciiCharacter < 1;
}
bool HasBadExtension(const HeaderBlock& h) {
  return h.log.strFileExtension.find_first_of("\"\\/:*?<>|") != std::string::npos;
}
/// The row of the first-run list under which a user picks a definition by hand.
bool HasNameOfOther(const HeaderBlock& h) { return SameIgnoringCase(h.log.strName, "<Other>"); }
bool HasNoTime(const HeaderBlock& h) {
  return h.log.dblLineFrequency == 0 && !h.log.objColumns.DataItemInColumns(ItemOf(kSecs));
}

constexpr Check<HeaderBlock> kHeaderChecks[] = {
    {Message::HeaderIncomplete, LacksHeaderData,
     [](const HeaderBlock& h) {
       return Texts{h.path, Line("File Name: ", h.log.strName),
                    Line("File Extension: ", h.log.strFileExtension),
                    Line("Delimiter ASCII Character: ", h.log.lngDelimiterAsciiCharacter)};
     }},
    {Message::BadFileExtension, HasBadExtension,
     [](const HeaderBlock& h) {
       return Texts{h.path, Line("File Extension: ", h.log.strFileExtension)};
     }},
    {Message::BadDefinitionName, HasNameOfOther,
     [](const HeaderBlock& h) {
       return Texts{h.path, Line("File Name: ", h.log.strName)};
     }},
};
constexpr Check<HeaderBlock> kTimeChecks[] = {
    {Message::NoTimeOrFrequency, HasNoTime, [](const HeaderBlock& h) { return Texts{h.path}; }}};

// A column.

struct ColumnBlock {
  const clsDataLogColumn& it;
  const clsLogDataItems& catalogue;
  bool ownItems;  ///< the definition may feed items of the log's own
};

bool IsIncomplete(const ColumnBlock& c) {
  return c.it.strName.empty() || c.it.strDescription.empty() || c.it.strColumnTitle.empty() ||
         c.it.lngDataItemID < 1 || c.it.lngType < 1 || !c.it.lngColumnDecimalPlaces.IsSet();
}
/// The program numbers the samples itself.
bool FeedsSample(const ColumnBlock& c) { return c.it.lngDataItemID == ItemOf(kSample); }
bool HasNoRange(const ColumnBlock& c) {
  return c.it.dblMinValue.IsSet() && c.it.dblMaxValue.IsSet() &&
         c.it.dblMinValue > c.it.dblMaxValue;
}
bool FeedsNoItem(const ColumnBlock& c) {
  const bool own =
      c.ownItems && c.it.lngDataItemID >= kFirstOwnItem && c.it.lngDataItemID <= kLastOwnItem;
  return c.it.lngDataItemID > c.catalogue.Count() && !own;
}

/// The program calculates with these, so that their kind must stay.
constexpr int kItemsOfFixedKind[] = {ItemOf(kSample), ItemOf(kRPM),   ItemOf(kCTemp),
                                     ItemOf(kSpeed),  ItemOf(kATemp), ItemOf(kPower),
                                     ItemOf(kTorque), ItemOf(kSecs)};

bool HasWrongKind(const ColumnBlock& c) {
  if (std::find(std::begin(kItemsOfFixedKind), std::end(kItemsOfFixedKind), c.it.lngDataItemID) ==
      std::end(kItemsOfFixedKind))
    return false;
  const bool list = c.catalogue.Item(c.it.lngDataItemID).intType == kListItem;
  return (c.it.lngType == kNumericColumn && list) || (c.it.lngType == kValueListColumn && !list);
}
bool HasValuesButIsNumeric(const ColumnBlock& c) {
  return c.it.lngType == kNumericColumn && c.it.objColumnValues->Count() > 0;
}
bool LacksValues(const ColumnBlock& c) {
  return c.it.lngType == kValueListColumn && c.it.objColumnValues->Count() == 0;
}

Texts NameOfColumn(const ColumnBlock& c) { return {c.it.strName}; }
Texts NameAndItem(const ColumnBlock& c) {
  return {Line("Column Name: ", c.it.strName), Line("Data Item ID: ", c.it.lngDataItemID)};
}

constexpr Check<ColumnBlock> kColumnChecks[] = {
    {Message::ColumnIncomplete, IsIncomplete,
     [](const ColumnBlock& c) {
       return Texts{Line("Column Name: ", c.it.strName),
                    Line("Column Title: ", c.it.strColumnTitle),
                    Line("Description: ", c.it.strDescription),
                    Line("Data Item ID: ", c.it.lngDataItemID),
                    Line("Column Data Type: ", c.it.lngType),
                    Line("Column Decimal Places Set: ",
                         FlagText(c.it.lngColumnDecimalPlaces.IsSet(), IniFlagForm::OnUnlessN))};
     }},
    {Message::DataItemCannotBeUsed, FeedsSample, NameAndItem},
    {Message::NoValidRange, HasNoRange,
     [](const ColumnBlock& c) {
       return Texts{Line("Column Name: ", c.it.strName),
                    Line("Minimum: ", c.it.dblMinValue.Value()),
                    Line("Maximum: ", c.it.dblMaxValue.Value())};
     }},
    {Message::DataItemOfDefinitionNotFound, FeedsNoItem, NameAndItem},
    {Message::ColumnOfOtherType, HasWrongKind,
     [](const ColumnBlock& c) {
       // The last is the type that a column of this type requires of its item.
       return Texts{Line("Column Name: ", c.it.strName), Line("Data Item ID: ", c.it.lngDataItemID),
                    Line("Column Data Type: ", c.it.lngType),
                    Line("Data Item Type: ", c.it.lngType)};
     }},
    {Message::ValuesNotAllowed, HasValuesButIsNumeric, NameOfColumn},
    {Message::NoColumnValues, LacksValues, NameOfColumn},
};

// Presets. All of them may use only items that the definition delivers.

struct Known {
  const clsDataLog& definition;
  const clsLogDataItems& catalogue;
  const std::string& path;

  bool Lacks(int item) const { return !IsDataItemInDataLogDefinition(item, definition, catalogue); }
};

struct SampleGraphBlock {
  const clsSampleGraphPreset& it;
  Known known;
};

/// The first item of a preset that the definition lacks; the end if there is none.
auto ForeignItem(const SampleGraphBlock& s) {
  return std::find_if(s.it.colDataItems.begin(), s.it.colDataItems.end(),
                      [&](int item) { return s.known.Lacks(item); });
}

constexpr Check<SampleGraphBlock> kSampleGraphChecks[] = {
    {Message::BadSamplePreset, [](const SampleGraphBlock& s) { return s.it.strName.empty(); },
     [](const SampleGraphBlock& s) {
       return Texts{s.known.path, Line("Name: ", s.it.strName)};
     }},
    {Message::SampleItemNotInDefinition,
     [](const SampleGraphBlock& s) { return ForeignItem(s) != s.it.colDataItems.end(); },
     [](const SampleGraphBlock& s) {
       return Texts{s.known.path, Line("Name: ", s.it.strName),
                    Line("Data Item ID: ", *ForeignItem(s))};
     }},
};

struct FilterBlock {
  const clsScatterFilter& it;
  const clsScatterGraphPreset& preset;
  const clsDataLogColumnValues* values;
  Known known;

  Texts Lines() const {
    return {known.path, Line("Scatter Graph Name: ", preset.strName),
            Line("Filter Data Item ID: ", it.lngDataItemSeq)};
  }
};

Texts With(Texts lines, const std::string& line) {
  lines.push_back(line);
  return lines;
}

/// A filter whose only bound is 0 or below is refused as well: kept on purpose.
bool HasNoBound(const FilterBlock& f) {
  return f.it.lngDataItemSeq < 1 || (f.it.dblFrom <= 0 && f.it.dblTo <= 0);
}

/// The entries of a file's value list are numbered 0, 1, 2.
bool IsNoListedValue(const FilterBlock& f) {
  return f.values && !(f.it.dblFrom >= 0 && f.it.dblFrom < f.values->Count() &&
                       f.it.dblFrom == std::floor(f.it.dblFrom));
}

constexpr Check<FilterBlock> kFilterChecks[] = {
    {Message::BadScatterFilter, HasNoBound,
     [](const FilterBlock& f) {
       return With(With(f.Lines(), Line("Filter From Value: ", f.it.dblFrom)),
                   Line("Filter To Value: ", f.it.dblTo));
     }},
    {Message::FilterItemNotInDefinition,
     [](const FilterBlock& f) { return f.known.Lacks(f.it.lngDataItemSeq); },
     [](const FilterBlock& f) { return f.Lines(); }},
    {Message::FilterValueNotInList, IsNoListedValue,
     [](const FilterBlock& f) {
       return With(f.Lines(), Line("Filter From Value: ", f.it.dblFrom));
     }},
};

struct ScatterGraphBlock {
  const clsScatterGraphPreset& it;
  Known known;

  Texts Lines() const { return {known.path, Line("Name: ", it.strName)}; }
  std::string X() const { return Line("X Axis Data Item ID: ", it.lngXAxisDataItem); }
  std::string Y() const { return Line("Y Axis Data Item ID: ", it.lngYAxisDataItem); }
};

bool IsIncompleteScatter(const ScatterGraphBlock& s) {
  return s.it.lngPointSize < 1 || s.it.lngXAxisDataItem < 1 || s.it.lngYAxisDataItem < 1 ||
         s.it.strName.empty();
}

constexpr Check<ScatterGraphBlock> kScatterGraphChecks[] = {
    {Message::BadScatterPreset, IsIncompleteScatter,
     [](const ScatterGraphBlock& s) {
       return With(With(With(s.Lines(), Line("Point Size: ", s.it.lngPointSize)), s.X()), s.Y());
     }},
    {Message::XAxisItemNotInDefinition,
     [](const ScatterGraphBlock& s) { return s.known.Lacks(s.it.lngXAxisDataItem); },
     [](const ScatterGraphBlock& s) { return With(s.Lines(), s.X()); }},
    {Message::YAxisItemNotInDefinition,
     [](const ScatterGraphBlock& s) { return s.known.Lacks(s.it.lngYAxisDataItem); },
     [](const ScatterGraphBlock& s) { return With(s.Lines(), s.Y()); }},
};

}  // namespace

std::string DetailText(const std::vector<std::string>& lines) { return Join(lines, "\r\n"); }

void CheckHeader(const clsDataLog& definition, const std::string& path) {
  Run<HeaderBlock>(kHeaderChecks, {definition, path});
}

void CheckTime(const clsDataLog& definition, const std::string& path) {
  Run<HeaderBlock>(kTimeChecks, {definition, path});
}

void CheckColumn(const clsDataLogColumn& column, const clsDataLog& definition,
                 const clsLogDataItems& catalogue) {
  Run<ColumnBlock>(kColumnChecks, {column, catalogue, definition.blnOwnDataItems});
}

void CheckSampleGraph(const clsSampleGraphPreset& preset, const clsDataLog& definition,
                      const clsLogDataItems& catalogue, const std::string& path) {
  Run<SampleGraphBlock>(kSampleGraphChecks, {preset, {definition, catalogue, path}});
}

void CheckFilter(const clsScatterFilter& filter, const clsScatterGraphPreset& preset,
                 const clsDataLog& definition, const clsDataLogColumnValues* values,
                 const clsLogDataItems& catalogue, const std::string& path) {
  Run<FilterBlock>(kFilterChecks, {filter, preset, values, {definition, catalogue, path}});
}

void CheckScatterGraph(const clsScatterGraphPreset& preset, const clsDataLog& definition,
                       const clsLogDataItems& catalogue, const std::string& path) {
  Run<ScatterGraphBlock>(kScatterGraphChecks, {preset, {definition, catalogue, path}});
}

}  // namespace tarnview
