// A byte lost anywhere in a settings file costs the line that it stood in, and no other.

#include <gtest/gtest.h>

#include <algorithm>

#include "app/FullSettings.h"
#include "app/SettingsSections.h"
#include "model/IniRepair.h"

namespace tarnview {
namespace {

std::vector<std::string> RowsOf(const std::string& text) {
  std::vector<std::string> rows;
  const IniTable table = ReadINIFileToArray(text);
  for (const IniRow& row : table.Rows())
    rows.push_back(row.section + "/" + row.key + "=" + row.value);
  std::sort(rows.begin(), rows.end());
  return rows;
}

TEST(IniRepair, AByteLostAnywhereCostsItsOwnLineAtMost) {
  const std::string whole = FullSettings();
  const auto rows = RowsOf(whole);
  const auto headings = SettingsHeadings();
  for (std::size_t at = 0; at < whole.size(); at += 97) {
    std::string damaged = whole;
    damaged[at] = '\0';
    const std::string repaired = WithoutDamage(damaged, headings);
    std::vector<std::string> lost;
    const auto kept = RowsOf(repaired);
    std::set_difference(rows.begin(), rows.end(), kept.begin(), kept.end(),
                        std::back_inserter(lost));
    ASSERT_LE(lost.size(), 1u) << "byte " << at << " of " << whole.substr(at, 20);
    ASSERT_EQ(repaired.find('\0'), std::string::npos);
  }
}

}  // namespace
}  // namespace tarnview
