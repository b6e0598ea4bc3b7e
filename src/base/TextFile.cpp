#include "base/TextFile.h"

#include <algorithm>

namespace tarnview {

void SettleText(FileBytes& bytes) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (std::string_view(bytes).starts_with(kMark)) bytes.DropFront(kMark.size());
  const std::string_view start = std::string_view(bytes).substr(0, kLongestLine);
  if (start.find('\n') != std::string_view::npos || start.find('\r') == std::string_view::npos)
    return;
  std::replace(bytes.Begin(), bytes.End(), '\r', '\n');
}

std::optional<FileBytes> ReadText(FileSystem& files, const std::string& path) {
  auto bytes = files.Read(path);
  if (bytes) SettleText(*bytes);
  return bytes;
}

bool HasLines(std::string_view text) {
  while (text.size() > kLongestLine) {
    const auto end = text.substr(0, kLongestLine + 1).rfind('\n');
    if (end == std::string_view::npos) return false;
    text.remove_prefix(end + 1);
  }
  return true;
}

}  // namespace tarnview
