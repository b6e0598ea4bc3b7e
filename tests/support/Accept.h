#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace tarnview {

inline std::string FileText(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

/// That what came out is what a raw string in `source` tells. With TARNVIEW_ACCEPT=1 it is written
/// there instead: read the difference.
inline void ExpectTold(const std::string& came, const std::string& told,
                       const char* source = __builtin_FILE(), int line = __builtin_LINE()) {
  EXPECT_EQ(came, told) << source << ":" << line;
  if (!std::getenv("TARNVIEW_ACCEPT") || came == told) return;
  std::string whole = FileText(source);
  for (const std::string& quoted : {"R\"(" + told + ")\"", "\"" + told + "\""}) {
    const auto at = whole.find(quoted);
    if (at == std::string::npos) continue;
    whole.replace(at + quoted.find(told), told.size(), came);
    std::ofstream(source, std::ios::binary) << whole;
    return;
  }
}

}  // namespace tarnview
