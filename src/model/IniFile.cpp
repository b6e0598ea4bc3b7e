#include "model/IniFile.h"

#include <algorithm>

#include "base/Text.h"

namespace tarnview {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string IndexOf(std::string_view section, std::string_view key) {
  std::string index(section);
  index += '\n';  // in neither
  return index += key;
}

bool IsSectionLine(std::string_view line) { return line.starts_with('[') && line.ends_with(']'); }

}  // namespace

void IniTable::Add(IniRow row) {
  first_.try_emplace(IndexOf(row.section, row.key), rows_.size());
  rows_.push_back(std::move(row));
}

const std::string* IniTable::Find(std::string_view section, std::string_view key) const {
  const auto found = first_.find(IndexOf(section, key));
  if (found == first_.end()) return nullptr;
  return &rows_[found->second].value;
}

IniTable ReadINIFileToArray(std::string_view text) {
  IniTable table;
  std::string section;
  std::string_view line;
  while (TakeLine(text, line)) {
    if (IsSectionLine(line)) {
      section = line.substr(1, line.size() - 2);
      continue;
    }
    const auto equals = line.find('=');
    std::string value;
    if (equals != std::string_view::npos) value = line.substr(equals + 1);
    const auto unwritable = [](char c) { return c == '\r' || c == '\0'; };
    std::replace_if(value.begin(), value.end(), unwritable, ' ');  // as it would be written
    table.Add({section, std::string(line.substr(0, equals)), std::string(Trim(value))});
  }
  return table;
}

std::optional<std::string_view> GetINIValue(const IniTable& table, std::string_view section,
                                            std::string_view key) {
  const std::string* value = table.Find(section, key);
  if (value) return std::optional<std::string_view>(*value);
  return std::nullopt;
}

std::string ReadProfileValue(const IniTable& table, std::string_view section,
                             std::string_view key) {
  constexpr std::size_t kMost = 255;  // characters: the call's buffer of 256 less its terminator
  const auto& rows = table.Rows();
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const IniRow& row) {
    return SameIgnoringCase(row.section, section) && SameIgnoringCase(Trim(row.key), key);
  });
  if (found == rows.end()) return "";
  std::string_view value = found->value;
  if (value.size() >= 2 && value.starts_with('"') && value.ends_with('"'))
    value = value.substr(1, value.size() - 2);
  return std::string(Trim(value.substr(0, kMost)));
}

bool IsIniText(std::string_view text) {
  bool empty = true;
  std::string_view line;
  while (TakeLine(text, line)) {
    if (IsSectionLine(line)) return true;
    empty = empty && TrimControlCharacters(line).empty();
  }
  return empty;
}

void IniWriter::Add(std::string_view text) {
  const auto start = static_cast<std::ptrdiff_t>(text_.size());
  text_ += text;
  std::replace_if(
      text_.begin() + start, text_.end(),
      [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
}

void IniWriter::Section(std::string_view name) {
  text_ += '[';
  Add(name);
  text_ += ']';
  text_ += kLineEnd;
}

void IniWriter::Line(std::string_view key, std::string_view value) {
  Add(key);
  text_ += '=';
  Add(value);
  text_ += kLineEnd;
}

void SetINIValue(std::string& text, std::string_view section, std::string_view key,
                 std::string_view value) {
  std::string written;
  bool inside = false, done = false;
  const auto write = [&] {
    IniWriter one;
    one.Line(key, value);
    written += one.Text();
    done = true;
  };
  std::string_view rest = text, line;
  while (TakeLine(rest, line)) {
    if (IsSectionLine(line)) {
      if (inside && !done) write();
      inside = line.substr(1, line.size() - 2) == section;
    } else if (inside && !done && line.substr(0, line.find('=')) == key) {
      write();
      continue;
    }
    written.append(line).append(kLineEnd);
  }
  if (!done) {
    if (!inside) written.append("[").append(section).append("]").append(kLineEnd);
    write();
  }
  text = std::move(written);
}

}  // namespace tarnview
