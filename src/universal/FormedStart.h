#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "universal/PlainLog.h"

namespace tarnview {

/// What the fields of a log are called.
struct LogStart {
  std::string titleLine;            ///< as it stands; empty where the log has none
  std::vector<std::string> titles;  ///< of the fields
};

/// For a log whose definition tells its form; `text` is left at the first line of samples, between
/// which others may stand. Raises a DefinitionFault where the lines that the definition counts are
/// not there; `path` is the log's.
LogStart FindFormedStart(PlainLog& text, const clsDataLog& definition, const std::string& path);

/// Titles may hold a delimiter between brackets that nobody quoted: "Torque (lb, ft)". Such parts
/// are joined again.
std::vector<std::string> JoinInBrackets(const std::vector<std::string_view>& fields,
                                        char delimiter);

/// Titles that stand over two rows: "Engine" above "Speed" is "Engine Speed".
std::vector<std::string> JoinRows(std::vector<std::string> above,
                                  const std::vector<std::string>& below);

/// Signs such as "#" or "%" and blanks in front of the first title.
std::string_view TitleMarkOf(std::string_view line);

}  // namespace tarnview
