#include "app/RecentFiles.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "desk/RecentMenu.h"

namespace tarnview {

RecentFiles::RecentFiles(ControlArray<MenuItem>& mnuRecentlyUsed, MenuItem& mnuSepRecentlyUsed)
    : items_(mnuRecentlyUsed), separator_(mnuSepRecentlyUsed) {
  Rewrite();
}

std::string RecentFiles::BuildRecentFileTag(const std::string& path, int fileType) {
  return std::to_string(fileType) + "|" + path;
}

RecentFiles::Entry RecentFiles::ParseTag(const std::string& tag) {
  const auto bar = tag.find('|');
  if (bar == std::string::npos) return {0, tag};
  return {StringToLong(tag.substr(0, bar)), tag.substr(bar + 1)};
}

void RecentFiles::AddRecentlyUsedFile(const std::string& path, int fileType) {
  std::erase_if(tags_,
                [&](const std::string& tag) { return SameIgnoringCase(ParseTag(tag).path, path); });
  tags_.insert(tags_.begin(), BuildRecentFileTag(path, fileType));
  if (Count() > items_.Count()) tags_.resize(static_cast<std::size_t>(items_.Count()));
  Rewrite();
}

void RecentFiles::Rewrite() {
  separator_.Visible = Count() > 0;
  for (const auto& item : items_) {
    const bool used = item->index < Count();
    item->Visible = used;
    if (!used) continue;
    const std::string path = At(item->index).path;
    item->Tag = tags_[static_cast<std::size_t>(item->index)];
    item->Caption = RecentCaption(item->index + 1, path);
    item->ToolTip = path;
  }
}

}  // namespace tarnview
