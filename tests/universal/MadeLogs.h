#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

/// A log in the manner of a logger of the field, with an invented drive.
struct MadeLog {
  std::string name;
  std::string text;
  std::string loaded;  ///< what it loads as, as the test prints it
  std::string shape;   ///< how it reads, as the test prints it
};

/// A text as UTF-16 with a byte order mark.
inline std::string AsUtf16(std::string_view text, bool bigEndian) {
  std::string out = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char c : text) {
    const char pair[] = {bigEndian ? '\0' : c, bigEndian ? c : '\0'};
    out.append(pair, 2);
  }
  return out;
}

std::vector<MadeLog> MadeLogs();

}  // namespace tarnview
