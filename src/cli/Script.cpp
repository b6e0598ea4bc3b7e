#include "cli/Script.h"

#include "base/Text.h"

namespace tarnview {
namespace {

/// Reads a quoted word; `rest` starts behind the opening quote and ends behind the closing one.
std::string Quoted(std::string_view& rest, int line) {
  std::string word;
  while (!rest.empty()) {
    char c = rest.front();
    rest.remove_prefix(1);
    if (c == '"') return word;
    if (c == '\\' && !rest.empty()) {
      c = rest.front() == 'n' ? '\n' : rest.front();
      rest.remove_prefix(1);
    }
    word += c;
  }
  throw ScriptError("a quote is not closed", line);
}

std::vector<std::string> Words(std::string_view rest, int line) {
  std::vector<std::string> words;
  while (true) {
    while (!rest.empty() && (rest.front() == ' ' || rest.front() == '\t')) rest.remove_prefix(1);
    if (rest.empty()) return words;
    if (rest.front() == '"') {
      rest.remove_prefix(1);
      words.push_back(Quoted(rest, line));
      continue;
    }
    const auto end = std::min(rest.find_first_of(" \t"), rest.size());
    words.emplace_back(rest.substr(0, end));
    rest.remove_prefix(end);
  }
}

}  // namespace

std::vector<ScriptLine> ParseScript(std::string_view text) {
  std::vector<ScriptLine> lines;
  std::string_view line;
  for (int number = 1; TakeLine(text, line); ++number) {
    const auto trimmed = Trim(line);
    if (trimmed.empty() || trimmed.front() == '#') continue;
    lines.push_back({number, Words(line, number)});
  }
  return lines;
}

}  // namespace tarnview
