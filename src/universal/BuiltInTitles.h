#pragma once

#include <string_view>

namespace tarnview {

/// The table of titles that comes along, "Log Titles.txt", in UTF-8.
std::string_view BuiltInTitles();

}  // namespace tarnview
