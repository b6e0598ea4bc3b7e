#pragma once

#include <string>
#include <string_view>

#include "universal/clsDataLog.h"

namespace tarnview {

/// Stands for a delimiter between quotes, where that is no thousands' sign.
inline constexpr char kQuotedDelimiter = '\x1F';

/// The text of a log as lines of plain fields: Windows-1252, no quotes, "." in numbers, one
/// delimiter between fields, as its definition says what it is. `storage` holds the text where it
/// had to be written anew.
std::string_view PlainLog(std::string_view bytes, const clsDataLog& definition,
                          std::string& storage);

}  // namespace tarnview
