#include "desk/RecentMenu.h"

#include "base/Paths.h"
#include "base/Text.h"

namespace tarnview {

std::string RecentCaption(int place, const std::string& path) {
  std::string caption = "&" + std::to_string(place) + " ";
  for (const char one : ShortPath(path)) {
    caption += one;
    if (one == '&') caption += one;  // doubled, it is no mark of a letter to press
  }
  return caption;
}

void AddRecentPath(std::vector<std::string>& paths, const std::string& path, std::size_t most) {
  std::erase_if(paths, [&](const std::string& other) { return SameIgnoringCase(other, path); });
  paths.insert(paths.begin(), path);
  if (paths.size() > most) paths.resize(most);
}

void ShowRecentPaths(ControlArray<MenuItem>& entries, MenuItem& separator,
                     const std::vector<std::string>& paths) {
  separator.Visible = !paths.empty();
  for (const auto& entry : entries) {
    const auto place = static_cast<std::size_t>(entry->index);
    entry->Visible = place < paths.size();
    if (place >= paths.size()) continue;
    entry->Tag = entry->ToolTip = paths[place];
    entry->Caption = RecentCaption(entry->index + 1, paths[place]);
  }
}

}  // namespace tarnview
