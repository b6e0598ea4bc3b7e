#include "model/clsLogDataItem.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

#include "base/Numbers.h"

namespace tarnview {
namespace {

std::string WholeText(std::int64_t value) {
  char buffer[24];
  return {buffer, std::to_chars(buffer, std::end(buffer), value).ptr};
}

/// Rounds as the text of the value reads: its 15 digits make a half of what falls short of one by
/// the last bit.
std::int32_t RoundAsText(double value) {
  const double fraction = std::fabs(value - std::floor(value) - 0.5);
  constexpr double kFarFromHalf = 1e-4;  // the 15 digits of a number of 32 bits reach further
  if (fraction > kFarFromHalf) return RoundToLong(value);
  return StringToLong(NumberText(value));
}

}  // namespace

void clsLogDataItem::SetDisplayDecimalPlaces(int places) {
  places_ = std::clamp(places, 0, detail::kMostExactDigits);
  if (places_ == 0)
    mask_ = "0";
  else
    mask_ = "0." + std::string(static_cast<std::size_t>(places_), '0');
}

void clsLogDataItem::SetMaxValue(double value) {
  max_ = value;
  maxSet_ = true;
}

void clsLogDataItem::SetMinValue(double value) {
  min_ = value;
  minSet_ = true;
}

bool clsLogDataItem::InFamily(int family) const {
  return std::find(colApplicableLogFamilies.begin(), colApplicableLogFamilies.end(), family) !=
         colApplicableLogFamilies.end();
}

std::string clsLogDataItem::GetFormattedData(std::int32_t stored) const {
  if (intType == kListItem) {
    const auto index = static_cast<std::size_t>(stored);
    if (stored >= 0 && index < varDescList.size()) return varDescList[index];
    return "";
  }
  const std::int64_t value = std::int64_t{stored} - lngStorageOffset;
  if (value == 0 && !blnDisplayZero) return "";
  if (intType != kScaledItem) return WholeText(value);
  if (dblFactor == 0) return "";
  return FixedText(static_cast<double>(value) / dblFactor, places_);
}

std::int32_t clsLogDataItem::SetRawData(double value) const {
  if (minSet_) value = std::max(min_, value);
  if (maxSet_) value = std::min(max_, value);
  if (intType != kListItem) value = value * Factor() + lngStorageOffset;
  return std::max(RoundAsText(value), LeastStored());
}

}  // namespace tarnview
