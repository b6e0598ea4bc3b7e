#include "model/IniMerge.h"

#include <algorithm>

#include "model/IniFile.h"

namespace tarnview {
namespace {

using Rows = std::vector<IniRow>;

/// Puts a row where it stands in the other program's order: behind the row that is ahead of it
/// there.
void Insert(Rows& rows, const IniRow& row, const IniRow* ahead) {
  auto place = std::find_if(rows.begin(), rows.end(),
                            [&](const IniRow& one) { return ahead && one.key == ahead->key; });
  if (place != rows.end()) ++place;
  rows.insert(place, row);
}

}  // namespace

std::string MergeKeys(const SectionVersions& section) {
  const IniTable read = ReadINIFileToArray(section.read);
  const IniTable held = ReadINIFileToArray(section.held);
  const IniTable inFile = ReadINIFileToArray(section.inFile);
  Rows merged;
  for (IniRow row : held.Rows()) {
    const std::string* before = read.Find("", row.key);
    const std::string* theirs = inFile.Find("", row.key);
    const bool changed = !before || *before != row.value;
    if (!changed && !theirs) continue;
    if (!changed) row.value = *theirs;
    merged.push_back(std::move(row));
  }
  const IniRow* ahead = nullptr;
  for (const IniRow& row : inFile.Rows()) {
    if (!held.Find("", row.key) && !read.Find("", row.key)) Insert(merged, row, ahead);
    ahead = &row;
  }
  IniWriter text;
  for (const IniRow& row : merged) text.Line(row.key, row.value);
  return text.Text();
}

std::string MergeWhole(const SectionVersions& section) {
  if (section.held == section.read) return std::string(section.inFile);
  return std::string(section.held);
}

}  // namespace tarnview
