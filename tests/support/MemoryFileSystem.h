#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/FileSystem.h"
#include "base/Paths.h"
#include "base/Text.h"

namespace tarnview {

/// A disk in memory that can fail and that notes every access ("read a/b.txt").
class MemoryFileSystem : public FileSystem {
 public:
  std::map<std::string, std::string> files;
  std::set<std::string> folders;      ///< without a separator at the end
  std::vector<std::string> accesses;  ///< verb and path, in their order
  bool failWrites = false;            ///< a full disk
  std::set<std::string> broken;       ///< paths that can be neither read nor changed
  std::set<std::string> readOnly;     ///< protected by their owner
  std::set<std::string> heldByAnother;
  std::set<std::string> pipes;  ///< among the files
  std::string here;             ///< where a path that is not absolute begins

  bool FileExists(const std::string& path) override {
    Note("exists", path);
    if (files.contains(path) || IsFolder(path)) return true;
    const std::string title = FileTitle(path);
    const std::string folder = path.substr(0, path.size() - title.size());
    return title.find_first_of("*?") != std::string::npos && !NamesIn(folder, title).empty();
  }
  bool FolderExists(const std::string& path) override {
    Note("folder", path);
    return IsFolder(path);
  }
  bool IsProgram(const std::string& path) override {
    return HasProgramName(path) && files.contains(path);
  }
  bool IsFile(const std::string& path) override {
    return files.contains(path) && !pipes.contains(path);
  }
  bool SameFile(const std::string& a, const std::string& b) override { return a == b; }
  std::string Absolute(const std::string& path) override {
    return path.starts_with('/') ? path : here + path;
  }
  std::optional<FileBytes> Read(const std::string& path) override {
    Note("read", path);
    const auto found = files.find(path);
    if (broken.contains(path) || found == files.end()) return std::nullopt;
    return FileBytes(found->second);
  }
  std::string WhyNotRead(const std::string& path) override {
    return files.contains(path) ? kTooLargeToRead : "No such file or directory";
  }
  bool MayReplace(const std::string& path) override { return !readOnly.contains(path); }
  void ClearLeftovers(const std::string& folder) override { Note("clear", folder); }
  bool Hold(const std::string& path) override {
    Note("hold", path);
    return !heldByAnother.contains(path);
  }
  void LetGo(const std::string& path) override { Note("let go", path); }
  bool Write(const std::string& path, std::string_view bytes) override {
    Note("write", path);
    if (!MayChange(path)) return false;
    files[path] = bytes;
    return true;
  }
  bool Append(const std::string& path, std::string_view bytes) override {
    Note("append", path);
    if (!MayChange(path)) return false;
    files[path] += bytes;
    return true;
  }
  bool DeleteFile(const std::string& path) override {
    Note("delete", path);
    return MayChange(path) && files.erase(path) > 0;
  }
  bool CopyFile(const std::string& from, const std::string& to) override {
    const auto bytes = Read(from);
    return bytes && Write(to, *bytes);
  }
  bool RenameFile(const std::string& from, const std::string& to) override {
    Note("rename", from);
    if (!MayChange(from) || !MayChange(to) || !files.contains(from)) return false;
    auto bytes = std::move(files[from]);
    files.erase(from);
    files[to] = std::move(bytes);
    return true;
  }
  bool MakeFolder(const std::string& path) override {
    Note("make", path);
    if (!MayChange(path)) return false;
    folders.insert(Bare(path));
    return true;
  }
  std::vector<std::string> List(const std::string& folder, const std::string& pattern) override {
    Note("list", folder);
    return NamesIn(AddBackslash(folder), pattern);
  }

 private:
  static std::string Bare(const std::string& path) {
    const bool ends = path.size() > 1 && (path.ends_with('/') || path.ends_with('\\'));
    return path.substr(0, path.size() - (ends ? 1 : 0));
  }
  /// A folder that was made, or one in which a file lies.
  bool IsFolder(const std::string& path) const {
    const std::string inside = AddBackslash(path);
    return folders.contains(Bare(path)) ||
           std::any_of(files.begin(), files.end(),
                       [&](const auto& file) { return file.first.starts_with(inside); });
  }
  bool MayChange(const std::string& path) const {
    return !failWrites && !broken.contains(path) && !IsFolder(path);
  }
  std::vector<std::string> NamesIn(const std::string& folder, const std::string& pattern) const {
    std::vector<std::string> names;
    for (const auto& [path, bytes] : files) {
      const std::string title = FileTitle(path);
      if (folder + title == path && MatchesPattern(title, pattern)) names.push_back(title);
    }
    return names;
  }
  void Note(const char* verb, const std::string& path) {
    accesses.push_back(std::string(verb) + " " + path);
  }
};

}  // namespace tarnview
