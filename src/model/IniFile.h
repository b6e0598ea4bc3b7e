#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarnview {

struct IniRow {
  std::string section;
  std::string key;
  std::string value;
};

/// The rows of a settings file in its order; of equal keys of a section the first counts.
class IniTable {
 public:
  void Add(IniRow row);
  const std::vector<IniRow>& Rows() const { return rows_; }
  /// Of exactly that section and key; nullptr if there is none.
  const std::string* Find(std::string_view section, std::string_view key) const;

 private:
  std::vector<IniRow> rows_;
  std::unordered_map<std::string, std::size_t> first_;  ///< by section, line feed and key
};

/// The rows of a settings file's text. The value is trimmed, the key is not: "Key =1" is another
/// key. A line without
/// "=" is a key with an empty value, also one that looks like half a section ("[Name").
IniTable ReadINIFileToArray(std::string_view text);

/// The value of exactly that section and key, valid as long as the table; nothing if there is none.
std::optional<std::string_view> GetINIValue(const IniTable& table, std::string_view section,
                                            std::string_view key);

/// The value as the desktop's own profile call reads it: whatever the case, without blanks around
/// the key and one pair of quotes around the value, 255 characters at most; empty if there is none.
std::string ReadProfileValue(const IniTable& table, std::string_view section, std::string_view key);

/// False for a text with something in it but no line of a section.
bool IsIniText(std::string_view text);

/// The lines of a settings file as they are written, with CR LF. A character that would end the
/// line early, or that no text file holds, is written as a blank.
class IniWriter {
 public:
  void Section(std::string_view name);
  void Line(std::string_view key, std::string_view value);
  /// What another one has written.
  void Lines(const IniWriter& other) { text_ += other.text_; }
  const std::string& Text() const { return text_; }

 private:
  void Add(std::string_view text);
  std::string text_;
};

/// Writes one key into a settings file's text: over its first line in that section, else as the
/// section's last.
void SetINIValue(std::string& text, std::string_view section, std::string_view key,
                 std::string_view value);

}  // namespace tarnview
