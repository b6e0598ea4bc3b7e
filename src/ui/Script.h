#pragma once

#include <functional>
#include <istream>
#include <optional>
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

/// The next line of a script; nothing at its end, or if the script is over for another reason.
using ScriptSource = std::function<std::optional<ScriptLine>()>;

/// Splits a script: words at blanks, double quotes keep blanks (inside them \" \\ \n), "#" begins a
/// comment line. Throws ScriptError for a quote that is not closed.
std::vector<ScriptLine> ParseScript(std::string_view text);
ScriptSource FromLines(std::vector<ScriptLine> lines);
/// The lines as they come, each read when it is wanted: whoever writes them may wait for what the
/// one before printed.
ScriptSource FromStream(std::istream& stream);

}  // namespace tarnview
