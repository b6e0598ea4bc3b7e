#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

struct IniRow {
  std::string section;
  std::string key;
  std::string value;
};

using IniTable = std::vector<IniRow>;

/// The rows of a settings file's text, in its order. The value is trimmed, the key is not: "Key =1" is another key. A
/// line without "=" is a key with an empty value, also one that looks like half a section ("[Name").
IniTable ReadINIFileToArray(std::string_view text);

/// The first value of exactly that section and key, valid as long as the table; nothing if there is none.
std::optional<std::string_view> GetINIValue(const IniTable& table, std::string_view section, std::string_view key);

}  // namespace tarnview
