#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnview {

/// The file that the command line names.
struct CommandLineFile {
  std::string path;  ///< empty: none
  std::optional<int> fileType;
};

/// `PATH` or `PATH|TYPE`, in quotes or not; the last "|" counts.
CommandLineFile ParseCommandLine(std::string_view text);

}  // namespace tarnview
