#include "model/IniFile.h"

#include "base/Text.h"

namespace tarnview {

IniTable ReadINIFileToArray(std::string_view text) {
  IniTable table;
  std::string section;
  std::string_view line;
  while (TakeLine(text, line)) {
    if (line.starts_with('[') && line.ends_with(']')) {
      section = line.substr(1, line.size() - 2);
      continue;
    }
    const auto equals = line.find('=');
    const auto value = equals == std::string_view::npos ? std::string_view() : line.substr(equals + 1);
    table.push_back({section, std::string(line.substr(0, equals)), std::string(Trim(value))});
  }
  return table;
}

std::optional<std::string_view> GetINIValue(const IniTable& table, std::string_view section, std::string_view key) {
  for (const IniRow& row : table)
    if (row.key == key && row.section == section) return row.value;
  return std::nullopt;
}

}  // namespace tarnview
