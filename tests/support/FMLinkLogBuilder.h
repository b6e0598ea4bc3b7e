#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

/// A line of blanks with texts put at positions from 1: Placed(57, {{1, "1"}, {9, "3250"}}).
inline std::string Placed(std::size_t length,
                          const std::vector<std::pair<std::size_t, std::string_view>>& texts) {
  std::string line(length, ' ');
  for (const auto& [at, text] : texts) line.replace(at - 1, text.size(), text);
  return line;
}

/// 16 cells of " %3d" that count up from `first`.
inline std::string ZoneRowText(int first, int step = 0) {
  std::string row;
  char cell[8];
  for (int c = 0; c < 16; ++c) {
    std::snprintf(cell, sizeof cell, " %3d", first + c * step);
    row += cell;
  }
  return row;
}

/// The lines of a zone section: one row for zones 0, 16, fuel, ignition, 224 and, with `lastRow`,
/// 240.
inline std::vector<std::string> ZoneSectionLines(const std::vector<std::string>& rows) {
  const std::vector<int> headings{0, 2, 1, 0, 0, 0, 0, 0, 3, 0, 0, 0, 0, 0, 2, 0};
  std::vector<std::string> lines;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (int i = 0; i < headings[row]; ++i) lines.push_back("heading");
    lines.push_back((row == 0 ? " ATM" : "") + rows[row]);
  }
  return lines;
}

/// 16 rows: zone n has the value n modulo 200.
inline std::vector<std::string> CountingZoneRows() {
  std::vector<std::string> rows;
  for (int row = 0; row < 16; ++row) rows.push_back(ZoneRowText(row * 16 % 200, 1));
  return rows;
}

inline std::string JoinLines(const std::vector<std::string>& lines, std::string_view end = "\r\n") {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(end);
  return text;
}

}  // namespace tarnview
