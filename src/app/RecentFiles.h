#pragma once

#include <string>
#include <vector>

#include "ui/ControlArray.h"
#include "ui/MenuItem.h"

namespace tarnview {

/// The files opened last, as menu items: index 0 is the latest. An entry's tag is its file type id,
/// "|" and its path.
class RecentFiles {
 public:
  struct Entry {
    int fileType = 0;
    std::string path;
  };
  RecentFiles(ControlArray<MenuItem>& mnuRecentlyUsed, MenuItem& mnuSepRecentlyUsed);

  /// Puts a file on top; one that is in the list already (case aside) moves there.
  void AddRecentlyUsedFile(const std::string& path, int fileType);
  static std::string BuildRecentFileTag(const std::string& path, int fileType);
  static Entry ParseTag(const std::string& tag);

  int Count() const { return static_cast<int>(tags_.size()); }
  Entry At(int index) const { return ParseTag(tags_[static_cast<std::size_t>(index)]); }
  /// The tags, the latest first: what the settings keep.
  const std::vector<std::string>& Tags() const { return tags_; }
  /// Writes the menu anew.
  void Rewrite();

 private:
  ControlArray<MenuItem>& items_;
  MenuItem& separator_;
  std::vector<std::string> tags_;
};

}  // namespace tarnview
