#include "base/Paths.h"

#include <algorithm>
#include <filesystem>

namespace tarnview {
namespace {

constexpr std::string_view kSeparators = "/\\";

bool IsSeparator(char c) { return kSeparators.find(c) != std::string_view::npos; }

std::string_view Title(std::string_view path) {
  const auto separator = path.find_last_of(kSeparators);
  if (separator == std::string_view::npos) return path;
  return path.substr(separator + 1);
}

/// The separator that a path uses, else the platform's own.
char SeparatorOf(std::string_view path) {
  const auto separator = path.find_last_of(kSeparators);
  if (separator == std::string_view::npos)
    return static_cast<char>(std::filesystem::path::preferred_separator);
  return path[separator];
}

bool IsWithinCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// At most so many bytes of a text, no character of UTF-8 cut in two.
std::string_view StartOf(std::string_view text, std::size_t length) {
  if (length >= text.size()) return text;
  while (length > 0 && IsWithinCharacter(text[length])) --length;
  return text.substr(0, length);
}
std::string_view EndOf(std::string_view text, std::size_t length) {
  std::size_t start = text.size() - std::min(length, text.size());
  while (start < text.size() && IsWithinCharacter(text[start])) ++start;
  return text.substr(start);
}

}  // namespace

std::string GetExtension(std::string_view path) {
  const auto title = Title(path);
  const auto point = title.rfind('.');
  if (point == std::string_view::npos) return "";
  return std::string(title.substr(point + 1));
}

std::string GetParentFolder(std::string_view path) {
  if (path.size() <= 1) return std::string(path);
  if (IsSeparator(path.back())) path.remove_suffix(1);
  return std::string(path.substr(0, path.size() - Title(path).size()));
}

std::string AddBackslash(std::string_view path) {
  std::string folder(path);
  if (folder.empty() || !IsSeparator(folder.back())) folder += SeparatorOf(path);
  return folder;
}

std::string PathIn(std::string_view folder, std::string_view name) {
  if (folder.empty()) return std::string(name);
  return AddBackslash(folder) + std::string(name);
}

std::string FileTitle(std::string_view path) { return std::string(Title(path)); }

bool IsLegalFileName(std::string_view name) {
  return name.find_first_of("\"\\/:*?<>|") == std::string_view::npos;
}

std::string WithoutExtension(std::string_view path) {
  const auto point = Title(path).rfind('.');
  if (point == std::string_view::npos) return std::string(path);
  return std::string(path.substr(0, path.size() - Title(path).size() + point));
}

std::string ShortPath(std::string_view path, std::size_t length) {
  if (path.size() <= length) return std::string(path);
  constexpr std::string_view kDots = "...";
  // What stays in front is the drive or root, what stays behind is as many of the last folders as
  // fit.
  const auto first = path.find_first_of(kSeparators);
  std::string_view head;
  if (first != std::string_view::npos) head = path.substr(0, first + 1);
  for (auto at = head.size(); (at = path.find_first_of(kSeparators, at)) != std::string_view::npos;
       ++at)
    if (head.size() + kDots.size() + path.size() - at <= length)
      return std::string(head) + std::string(kDots) + std::string(path.substr(at));
  // A name that is too long by itself shows its beginning, which tells it apart, and its end.
  const std::string_view title = Title(path);
  if (length <= kDots.size()) return std::string(title.substr(0, length));
  const std::size_t room = length - kDots.size();
  return std::string(StartOf(title, room - room / 3)) + std::string(kDots) +
         std::string(EndOf(title, room / 3));
}

}  // namespace tarnview
