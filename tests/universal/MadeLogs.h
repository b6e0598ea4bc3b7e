#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "support/Table.h"

namespace tarnview {

/// A log of made_logs.txt, in its encoding.
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

inline std::string Encoded(const std::string& text, const std::string& encoding) {
  if (encoding == "WINDOWS-1252") return FromUtf8(text);
  if (encoding.starts_with("UTF-16")) return AsUtf16(text, encoding == "UTF-16BE");
  if (encoding == "CR") return Join(Split(text, '\n'), "\r");
  return text;
}

inline std::vector<MadeLog> MadeLogs() {
  std::stringstream file;
  file << std::ifstream(TARNVIEW_TESTS "/universal/made_logs.txt", std::ios::binary).rdbuf();
  std::vector<std::string> parts = SplitAt(file.str(), "\n== ");
  std::vector<MadeLog> logs;
  for (std::size_t n = 1; n < parts.size(); ++n) {
    if (n + 1 < parts.size()) parts[n] += '\n';
    const auto shape = SplitAt(parts[n], "-- reads as\n");
    const auto loaded = SplitAt(shape.at(0), "\n-- loads as\n");
    const auto name = SplitAt(loaded.at(0).substr(0, loaded[0].find('\n')), "; ");
    const std::string text = loaded[0].substr(loaded[0].find('\n') + 1) + "\n";
    const std::string& told = loaded.at(1);
    logs.push_back({name[0], Encoded(text, name.size() > 1 ? name[1] : ""),
                    told.substr(0, told.size() - 1), shape.at(1)});
  }
  return logs;
}

}  // namespace tarnview
