#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/FileSystem.h"

namespace tarnview {

/// Bytes of a line that no line of a log comes near.
inline constexpr std::size_t kLongestLine = std::size_t{16} << 20;

/// The file as its readers know text: without UTF-8's byte order mark in front, and with LF for CR
/// where it has no LF. Nothing for a file that cannot be read.
std::optional<FileBytes> ReadText(FileSystem& files, const std::string& path);
void SettleText(FileBytes& bytes);

/// Whether no line is longer than kLongestLine, so that there is sense in looking for lines at all.
bool HasLines(std::string_view text);

}  // namespace tarnview
