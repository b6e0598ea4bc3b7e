#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

/// One action of a script with the number of its line, from 1.
struct ScriptLine {
  int number = 0;
  std::vector<std::string> words;
};

/// A line that is no line of a script, or that cannot be done.
class ScriptError : public std::runtime_error {
 public:
  ScriptError(const std::string& text, int itsLine) : std::runtime_error(text), line(itsLine) {}
  int line;
};

/// Splits a script: words at blanks, double quotes keep blanks (inside them \" \\ \n), "#" begins a comment line.
/// Throws ScriptError for a quote that is not closed.
std::vector<ScriptLine> ParseScript(std::string_view text);

}  // namespace tarnview
