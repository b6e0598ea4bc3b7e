#include "ui/Script.h"

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
      if (rest.front() == 'n')
        c = '\n';
      else
        c = rest.front();
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

/// Nothing for an empty line or a comment.
std::optional<ScriptLine> ParseLine(std::string_view line, int number) {
  const auto trimmed = Trim(line);
  if (trimmed.empty() || trimmed.front() == '#') return std::nullopt;
  return ScriptLine{number, Words(line, number)};
}

}  // namespace

std::vector<ScriptLine> ParseScript(std::string_view text) {
  std::vector<ScriptLine> lines;
  std::string_view line;
  for (int number = 1; TakeLine(text, line); ++number)
    if (auto parsed = ParseLine(line, number)) lines.push_back(std::move(*parsed));
  return lines;
}

ScriptSource FromLines(std::vector<ScriptLine> lines) {
  return [lines = std::move(lines), next = std::size_t{0}]() mutable -> std::optional<ScriptLine> {
    if (next >= lines.size()) return std::nullopt;
    return lines[next++];
  };
}

ScriptSource FromStream(std::istream& stream) {
  return [&stream, number = 0]() mutable -> std::optional<ScriptLine> {
    std::string line;
    while (std::getline(stream, line)) {
      if (line.ends_with('\r')) line.pop_back();
      if (auto parsed = ParseLine(line, ++number)) return parsed;
    }
    return std::nullopt;
  };
}

}  // namespace tarnview
