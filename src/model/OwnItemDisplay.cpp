#include "model/OwnItemDisplay.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Catalogue.h"
#include "model/IniKeys.h"
#include "model/SettingLimits.h"

namespace tarnview {
namespace {

constexpr std::size_t kMostKept = 200;
constexpr long kWhite = 0xFFFFFF;
/// Items of a log's own may be drawn smaller and larger than those of the catalogue.
constexpr double kLeastFactor = 0.0001, kMostFactor = 1000;

enum Part { kColour, kStyle, kWidth, kDisplay, kFactor, kTitle, kParts };

/// What tells items of different logs apart: the title, without the signs that stand between.
std::string TitleOf(const clsLogDataItem& item) {
  std::string title = Upper(item.strLongName);
  std::replace(title.begin(), title.end(), '|', ' ');
  return std::string(Trim(title));
}

std::string EntryOf(const clsLogDataItem& item) {
  return std::to_string(item.lngColour) + "," + std::to_string(item.lngLineStyle) + "," +
         std::to_string(item.lngLineWidth) + "," +
         FlagText(item.blnDisplay, IniFlagForm::OnUnlessN) + "," +
         NumberText(item.dblSampleDisplayFactor) + "," + TitleOf(item);
}

/// The parts of an entry, of which the last is its title with all its commas; empty for none.
std::vector<std::string> PartsOf(const std::string& entry) {
  std::vector<std::string> parts = Split(entry, ',');
  if (parts.size() < kParts) return {};
  for (std::size_t at = kParts; at < parts.size(); ++at) parts[kTitle] += "," + parts[at];
  parts.resize(kParts);
  parts[kTitle] = Upper(parts[kTitle]);
  return parts;
}

void Lay(const std::vector<std::string>& parts, clsLogDataItem& item) {
  item.lngColour = std::clamp<long>(StringToLong(parts[kColour]), 0, kWhite);
  item.lngLineStyle = kLineStyleLimits.Hold(StringToLong(parts[kStyle]));
  item.lngLineWidth = kLineWidthLimits.Hold(StringToLong(parts[kWidth]));
  item.blnDisplay = parts[kDisplay] == "Y";
  item.dblSampleDisplayFactor =
      std::clamp(StringToDouble(parts[kFactor]), kLeastFactor, kMostFactor);
}

}  // namespace

std::string KeepOwnItemDisplay(const std::string& kept, const clsLogDataItems& before,
                               const clsLogDataItems& after) {
  std::vector<std::string> entries, titles;
  const int last = std::min(before.Count(), after.Count());
  for (int number = gintColumnCount + 1; number <= last; ++number) {
    if (EntryOf(before.Item(number)) == EntryOf(after.Item(number))) continue;
    entries.push_back(EntryOf(after.Item(number)));
    titles.push_back(TitleOf(after.Item(number)));
  }
  if (entries.empty()) return kept;
  for (const std::string& entry : Split(kept, '|')) {
    const auto parts = PartsOf(entry);
    if (!parts.empty() && std::find(titles.begin(), titles.end(), parts[kTitle]) == titles.end())
      entries.push_back(entry);
  }
  entries.resize(std::min(entries.size(), kMostKept));
  return Join(entries, "|");
}

void ShowOwnItemsAs(const std::string& kept, clsLogDataItems& items) {
  if (kept.empty() || items.Count() <= gintColumnCount) return;
  std::unordered_map<std::string, std::vector<std::string>> entries;
  for (const std::string& entry : Split(kept, '|'))
    if (auto parts = PartsOf(entry); !parts.empty()) entries.emplace(parts[kTitle], parts);
  for (int number = gintColumnCount + 1; number <= items.Count(); ++number) {
    const auto found = entries.find(TitleOf(items.Item(number)));
    if (found != entries.end()) Lay(found->second, items.Item(number));
  }
}

}  // namespace tarnview
