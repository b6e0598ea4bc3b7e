#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/FileBytes.h"

namespace tarnview {

/// The disk. Paths are the platform's bytes. Nothing here throws; a failure is false or nothing.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// A file or folder of that name, or one that the wildcards "*" and "?" of its last part match.
  virtual bool FileExists(const std::string& path) = 0;
  virtual bool FolderExists(const std::string& path) = 0;
  /// A file that can be run: by its name ("EXE" at its end, in any case), and where files carry a
  /// permission for that, by that as well, so that a wrapper or an emulator serves.
  virtual bool IsProgram(const std::string& path) = 0;
  /// A file whose bytes can be asked for: no folder, pipe or device, which might never end.
  virtual bool IsFile(const std::string& path) = 0;
  /// Whether two paths lead to one file, whatever links and "." are on the way.
  virtual bool SameFile(const std::string& a, const std::string& b) = 0;
  /// A path that means the same file from any folder: "../run.txt" gives "/car/run.txt".
  virtual std::string Absolute(const std::string& path) = 0;
  /// The whole file; nothing for a folder, a pipe or device, or a file that cannot be read.
  virtual std::optional<FileBytes> Read(const std::string& path) = 0;
  /// In words, why Read gives nothing for a path: "It is larger than 1 GiB."
  virtual std::string WhyNotRead(const std::string& path) = 0;
  /// Writes a new file beside the old one and renames it, so that at every moment the old or the
  /// new one is whole. Clears what saves that were killed have left in the folder.
  virtual bool Write(const std::string& path, std::string_view bytes) = 0;
  virtual bool Append(const std::string& path, std::string_view bytes) = 0;
  /// False for a file that its owner protects: a Write would replace it all the same. True where
  /// there is none.
  virtual bool MayReplace(const std::string& path) = 0;
  /// Deletes the unfinished new files in a folder whose writers are gone.
  virtual void ClearLeftovers(const std::string& folder) = 0;
  /// Marks a file as this program's own until it lets go or ends; false while another running
  /// program has it.
  virtual bool Hold(const std::string& path) = 0;
  virtual void LetGo(const std::string& path) = 0;
  /// Also a read-only or hidden one.
  virtual bool DeleteFile(const std::string& path) = 0;
  virtual bool CopyFile(const std::string& from, const std::string& to) = 0;
  virtual bool RenameFile(const std::string& from, const std::string& to) = 0;
  virtual bool MakeFolder(const std::string& path) = 0;
  /// Names (no folders) in a folder that match a pattern such as "*.txt", sorted.
  virtual std::vector<std::string> List(const std::string& folder, const std::string& pattern) = 0;
};

/// The machine's own disk.
class RealFileSystem : public FileSystem {
 public:
  bool FileExists(const std::string& path) override;
  bool FolderExists(const std::string& path) override;
  bool IsProgram(const std::string& path) override;
  bool IsFile(const std::string& path) override;
  bool SameFile(const std::string& a, const std::string& b) override;
  std::string Absolute(const std::string& path) override;
  std::optional<FileBytes> Read(const std::string& path) override;
  std::string WhyNotRead(const std::string& path) override;
  bool Write(const std::string& path, std::string_view bytes) override;
  bool Append(const std::string& path, std::string_view bytes) override;
  bool MayReplace(const std::string& path) override;
  void ClearLeftovers(const std::string& folder) override;
  bool Hold(const std::string& path) override;
  void LetGo(const std::string& path) override { held_.erase(path); }
  bool DeleteFile(const std::string& path) override;
  bool CopyFile(const std::string& from, const std::string& to) override;
  bool RenameFile(const std::string& from, const std::string& to) override;
  bool MakeFolder(const std::string& path) override;
  std::vector<std::string> List(const std::string& folder, const std::string& pattern) override;

 private:
  std::map<std::string, std::shared_ptr<void>> held_;  ///< the open files
};

/// No file that the program reads is near it; a sparse file may claim any size.
inline constexpr std::int64_t kMostFileBytes = std::int64_t{1} << 30;

inline constexpr const char* kTooLargeToRead = "It is larger than 1 GiB.";
inline constexpr const char* kNoMemoryToRead = "There is not enough memory for it.";

/// "C:\Link\LINKWIN.exe" is.
bool HasProgramName(std::string_view path);

/// "*" stands for any characters, "?" for one; case is ignored.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace tarnview
