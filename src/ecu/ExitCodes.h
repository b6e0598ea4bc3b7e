#pragma once

#include <string>

namespace tarnview {

/// A normal end of the programs that talk to the ECU.
inline constexpr int kNormalExit = 0;

/// What such a program meant by its exit code, and the code: "Error opening comm port., -22".
std::string ExitCodeText(int code);

}  // namespace tarnview
