#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/Text.h"
#include "cli/Commands.h"
#include "support/Table.h"
#include "ui/Script.h"

namespace tarnview {

/// A value of what was printed; of a long list how many there are, the first and the last.
inline std::string Brief(const nlohmann::ordered_json& value) {
  constexpr std::size_t kMostInFull = 16;
  if (value.is_string()) return value.get<std::string>();
  if (!value.is_array() || value.size() <= kMostInFull) return value.dump();
  return std::to_string(value.size()) + " from " + value.front().dump() + " to " +
         value.back().dump();
}

/// A text of lines, "/" at the end of each.
inline std::string OneLine(const std::string& text) {
  return Join(Split(Join(Split(text, '\r'), "\\r"), '\n'), "/");
}

/// What a command line of the program came to.
struct Ran {
  int status;
  std::string out, err;

  /// The status, of the object printed what stands at those places ("/series/0/x", apart by
  /// blanks; "names" of its members; "all" as it is), and the first line of what went wrong.
  std::string Told(const std::string& places) const {
    std::string told = std::to_string(status);
    for (const std::string& place : Split(places, ' ')) {
      if (place == "all") told += " " + OneLine(out);
      if (place.empty() || place == "all") continue;
      const auto object = nlohmann::ordered_json::parse(out);
      if (place == "names")
        for (const auto& member : object.items()) told += " " + member.key();
      if (!place.starts_with('/')) continue;
      const nlohmann::ordered_json::json_pointer pointer(place);
      told += " " + (object.contains(pointer) ? Brief(object.at(pointer)) : "nothing");
    }
    return told + (err.empty() ? "" : "; " + err.substr(0, err.find('\n')));
  }
};

/// Without the folder's name, which is another at each run.
inline std::string Without(const std::string& folder, std::string text) {
  for (auto at = text.find(folder); at != text.npos; at = text.find(folder, at))
    text.erase(at, folder.size());
  return text;
}

/// Words stand apart by blanks, one in quotes keeps its own; paths lead from `folder`.
inline Ran RunCli(const std::string& line, const std::string& folder = TARNVIEW_EXAMPLES) {
  const std::vector<std::string> words = ParseScript("tarnview-cli " + line)[0].words;
  std::vector<const char*> arguments;
  for (const std::string& word : words) arguments.push_back(word.c_str());
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder);
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  const int status = RunCommandLine(static_cast<int>(arguments.size()), arguments.data());
  const std::string out = ::testing::internal::GetCapturedStdout();
  const std::string err = ::testing::internal::GetCapturedStderr();
  std::filesystem::current_path(before);
  return {status, Without(folder + "/", out), Without(folder + "/", err)};
}

/// Rows of a command line and, behind ", ", the places of what it printed.
inline void ExpectRuns(const std::string& table, const std::string& folder = TARNVIEW_EXAMPLES,
                       const char* source = __builtin_FILE(), int line = __builtin_LINE()) {
  const auto run = [&](const TableRow& row) {
    return RunCli(row.Text(0), folder).Told(row.Count() > 1 ? row.Text(1) : "");
  };
  ExpectTable(run, table, source, line);
}

}  // namespace tarnview
