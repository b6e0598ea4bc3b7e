#include "universal/HeaderMap.h"

#include <algorithm>
#include <limits>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Column.h"

namespace tarnview {
namespace {

/// Not even an overflowing value reaches it from within.
constexpr double kBeyond = std::numeric_limits<double>::infinity();

/// Bytes of UTF-8 for one of Windows-1252.
constexpr std::size_t kMostForOne = 3;

/// The power of ten that a factor is, up to the fourth.
std::optional<int> TensOf(double factor) {
  for (int tens = 0; tens <= 4; ++tens)
    if (factor == PowerOfTen(tens)) return tens;
  return std::nullopt;
}

}  // namespace

ValueLookup::ValueLookup(const clsDataLogColumnValues& values) {
  for (const auto& value : values) {
    translations_.emplace(CaseKey(value->strDataLogValue),
                          value->lngDataLogTranslation);  // the first of a text stays
    longest_ = std::max(longest_, kMostForOne * value->strDataLogValue.size());
  }
  capitals_.reserve(longest_);
}

std::int32_t ValueLookup::operator()(std::string_view field) {
  field = Trim(field);
  if (field.size() > longest_) return 0;
  capitals_ = field;
  std::transform(capitals_.begin(), capitals_.end(), capitals_.begin(), AsciiUpper);
  const bool ascii = std::all_of(field.begin(), field.end(),
                                 [](char c) { return static_cast<signed char>(c) >= 0; });
  const auto found = translations_.find(ascii ? capitals_ : CaseKey(field));
  if (found == translations_.end()) return 0;
  return found->second;
}

FieldTarget::FieldTarget(const clsDataLogColumn& it)
    : column(it.lngDataItemID - 1),
      factor(it.dblConversionFactor),
      bounded(it.dblMinValue.IsSet() || it.dblMaxValue.IsSet()),
      setToMin(it.blnSetToMinimum),
      setToMax(it.blnSetToMaximum),
      negative(it.blnSigned),
      min(-kBeyond),
      max(kBeyond),
      scale(it.Scale()),
      storedOffset(it.Scale() * it.dblOffset) {
  if (factor == 0) factor = 1;
  if (it.dblMinValue.IsSet()) min = it.dblMinValue;
  if (it.dblMaxValue.IsSet()) max = it.dblMaxValue;
  if (it.blnConversionFactorFirst)
    after = it.dblConversionOffset;
  else
    before = it.dblConversionOffset;
  if (it.lngType == kNumericColumn) kind = Kind::Number;
  if (kind == Kind::Number && it.lngConversionType == kDateAndTime) kind = Kind::Date;
  if (kind == Kind::Number && !bounded && factor == 1 && before == 0 && after == 0 &&
      storedOffset == 0)
    tens = TensOf(scale);
  if (it.lngType != kValueListColumn) return;
  kind = Kind::Value;
  values = std::make_shared<ValueLookup>(*it.objColumnValues);
}

HeaderMap::HeaderMap(std::string_view headerLine, const clsDataLog& definition) {
  Gather(definition);
  for (const std::string_view field :
       SplitFields(headerLine, definition.lngDelimiterAsciiCharacter))
    Match(field, definition);
}

HeaderMap::HeaderMap(const std::vector<std::string>& titles, const clsDataLog& definition) {
  Gather(definition);
  for (const std::string& title : titles) Match(title, definition);
}

void HeaderMap::Gather(const clsDataLog& definition) {
  int most = kColumnCount;
  for (int n = 1; n <= definition.objColumns.Count(); ++n) {
    const clsDataLogColumn& column = definition.objColumns.Item(n);
    Group& group = groups_[CaseKey(column.strColumnTitle)];
    group.columns.push_back(n);
    group.byOccurrence = group.byOccurrence || column.lngTitleOccurrence > 0;
    most = std::max(most, column.lngDataItemID);
  }
  fed_.resize(static_cast<std::size_t>(most) + 1);
}

void HeaderMap::Match(std::string_view field, const clsDataLog& definition) {
  const auto found = groups_.find(CaseKey(Trim(field)));
  if (found == groups_.end() || (found->second.used > 0 && definition.blnIgnoreDuplicateColumns)) {
    unknown_.emplace_back(field);
    fields_.emplace_back();
    return;
  }
  Group& group = found->second;
  ++group.used;
  if (group.used == 1 || group.byOccurrence)
    group.targets = AddTargets(group.columns, group.used, definition);
  fields_.push_back(group.targets);
}

/// What the columns of a title make of its field that comes as the n-th.
HeaderMap::Range HeaderMap::AddTargets(const std::vector<int>& columns, int occurrence,
                                       const clsDataLog& definition) {
  const auto first = static_cast<std::uint32_t>(targets_.size());
  for (const int n : columns) {
    const clsDataLogColumn& column = definition.objColumns.Item(n);
    if (column.lngTitleOccurrence > 0 && column.lngTitleOccurrence != occurrence) continue;
    fed_[static_cast<std::size_t>(column.lngDataItemID)] = true;
    FieldTarget target(column);
    if (!definition.strTimeForm.empty() && column.lngDataItemID == ItemOf(kSecs))
      target.kind = FieldTarget::Kind::Time;
    if (target.kind != FieldTarget::Kind::Nothing) targets_.push_back(target);
    if (column.blnSmooth &&
        std::find(smoothed_.begin(), smoothed_.end(), column.lngDataItemID) == smoothed_.end())
      smoothed_.push_back(column.lngDataItemID);
  }
  return {first, static_cast<std::uint32_t>(targets_.size()) - first};
}

bool HeaderMap::Feeds(int item) const {
  const auto index = static_cast<std::size_t>(item);
  return item >= 0 && index < fed_.size() && fed_[index];
}

std::vector<std::string_view> SplitFields(std::string_view line, std::int32_t delimiter) {
  std::vector<std::string_view> fields;
  if (line.empty()) return fields;
  while (fields.size() < kMostFields) {
    auto end = std::string_view::npos;
    if (delimiter <= 255) end = line.find(static_cast<char>(delimiter));
    fields.push_back(line.substr(0, end));
    if (end == std::string_view::npos) return fields;
    line.remove_prefix(end + 1);
  }
  return fields;
}

}  // namespace tarnview
