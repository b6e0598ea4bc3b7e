#pragma once

#include <string>

namespace tarnview {

/// Full path of the system's own information tool; "" where there is none.
std::string SystemInformationTool();

}  // namespace tarnview
