#pragma once

#include <string>

namespace tarnview {

/// A command line: the path of a program, which is one word even with blanks in it, and behind it
/// the rest as it is written, with a blank in front. No quotes stand around the path.
struct ProgramCall {
  std::string program;
  std::string arguments = {};

  std::string Text() const { return program + arguments; }
  friend bool operator==(const ProgramCall&, const ProgramCall&) = default;
};

}  // namespace tarnview
