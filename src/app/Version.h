#pragma once

namespace tarnview {

inline constexpr const char* kVersion = "0.1.0";
inline constexpr const char* kPlatform = "For Linux and Windows";
inline constexpr const char* kDescription =
    "Shows what happened in an engine from the log of its computer.";

}  // namespace tarnview
