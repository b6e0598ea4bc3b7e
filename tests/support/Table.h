#pragma once

#include <string>
#include <vector>

#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "support/Accept.h"

namespace tarnview {

inline std::vector<std::string> SplitAt(const std::string& text, const std::string& sign) {
  std::vector<std::string> parts;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find(sign, at), text.size());
    parts.push_back(text.substr(at, end - at));
    at = end + sign.size();
  }
  return parts;
}

/// A row of a table in a test: its words, which stand apart by ", ".
class TableRow {
 public:
  explicit TableRow(const std::string& row) : all_(row), words_(SplitAt(row, ", ")) {}
  const std::string& All() const { return all_; }  ///< where it is one text
  /// A text of lines, which stand apart by "; ".
  std::string Lines() const { return Join(SplitAt(all_, "; "), "\n"); }
  const std::vector<std::string>& Words() const { return words_; }
  std::size_t Count() const { return words_.size(); }
  const std::string& Text(std::size_t n) const { return words_.at(n); }
  int Int(std::size_t n) const { return StringToLong(words_.at(n)); }
  double Number(std::size_t n) const { return std::stod(words_.at(n)); }
  bool Yes(std::size_t n) const { return words_.at(n) == "yes"; }

 private:
  std::string all_;
  std::vector<std::string> words_;
};

/// That `tell` makes of each row what stands behind its " -> ". Short rows may share a line, with
/// " | " between them; a line that begins with "#" is a remark.
template <class Tell>
void ExpectTable(const Tell& tell, const std::string& table, const char* source = __builtin_FILE(),
                 int line = __builtin_LINE()) {
  std::vector<std::string> lines = Split(table, '\n');
  for (std::string& one : lines) {
    if (one.empty() || one[0] == '#') continue;
    std::vector<std::string> rows = SplitAt(one, " | ");
    for (std::string& row : rows) {
      row.resize(std::min(row.find(" -> "), row.size()));
      row += " -> " + std::string(tell(TableRow(row)));
    }
    one = Join(rows, " | ");
  }
  ExpectTold(Join(lines, "\n"), table, source, line);
}

}  // namespace tarnview
