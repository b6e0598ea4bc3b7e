#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnview {

/// A settings file's text without the NUL bytes that a dying disk or a power cut left in it. A line
/// keeps what can be told of it: a heading is known among `headings`, a record's key ("Graph 3
/// Name") by those of the other records, a text has "?" for what is gone; a number that lost a
/// digit is none, and its line goes. Other lines stay untouched.
std::string WithoutDamage(std::string_view text, const std::vector<std::string>& headings);

}  // namespace tarnview
