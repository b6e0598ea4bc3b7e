#include "base/FileSystem.h"

#include <algorithm>
#include <filesystem>

#include "base/Paths.h"
#include "base/Text.h"

namespace tarnview {
namespace {

namespace fs = std::filesystem;

bool IsWildcard(std::string_view name) {
  return name.find_first_of("*?") != std::string_view::npos;
}

std::vector<std::string> NamesIn(const std::string& folder, const std::string& pattern,
                                 bool foldersToo) {
  std::vector<std::string> names;
  std::error_code failed;
  for (fs::directory_iterator at(OrElse(folder, "."), failed), end; !failed && at != end;
       at.increment(failed)) {
    std::error_code unknown;
    const std::string name = at->path().filename().string();
    if ((foldersToo || !at->is_directory(unknown)) && MatchesPattern(name, pattern))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

bool HasProgramName(std::string_view path) { return Upper(path).ends_with("EXE"); }

bool RealFileSystem::FileExists(const std::string& path) {
  if (path.empty()) return false;
  std::error_code failed;
  if (fs::exists(path, failed)) return true;
  const std::string title = FileTitle(path);
  return IsWildcard(title) &&
         !NamesIn(path.substr(0, path.size() - title.size()), title, true).empty();
}

bool RealFileSystem::FolderExists(const std::string& path) {
  const auto folder = Trim(path);
  std::error_code failed;
  return !folder.empty() && fs::is_directory(std::string(folder), failed);
}

bool RealFileSystem::IsFile(const std::string& path) {
  std::error_code failed;
  return fs::is_regular_file(path, failed);
}

bool RealFileSystem::SameFile(const std::string& a, const std::string& b) {
  std::error_code failed;
  return a == b || fs::equivalent(a, b, failed);
}

std::string RealFileSystem::Absolute(const std::string& path) {
  std::error_code failed;
  const fs::path whole = fs::absolute(path, failed);
  if (failed) return path;
  // ".." behind a link to a folder leads elsewhere than its text says.
  const std::string plain = whole.lexically_normal().string();
  if (SameFile(whole.string(), plain)) return plain;
  return whole.string();
}

bool RealFileSystem::CopyFile(const std::string& from, const std::string& to) {
  const auto bytes = Read(from);
  return bytes && Write(to, *bytes);
}

bool RealFileSystem::RenameFile(const std::string& from, const std::string& to) {
  std::error_code failed;
  fs::rename(from, to, failed);
  return !failed;
}

bool RealFileSystem::MakeFolder(const std::string& path) {
  std::error_code failed;
  fs::create_directories(path, failed);
  return FolderExists(path);
}

std::vector<std::string> RealFileSystem::List(const std::string& folder,
                                              const std::string& pattern) {
  return NamesIn(folder, pattern, false);
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  // On a mismatch the last "*" takes one character more, so that no pattern costs more than both
  // lengths multiplied.
  std::size_t n = 0, p = 0, star = std::string_view::npos, resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() &&
               (pattern[p] == '?' || SameIgnoringCase(name.substr(n, 1), pattern.substr(p, 1)))) {
      ++n;
      ++p;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

}  // namespace tarnview
