#pragma once

#include <string>
#include <vector>

#include "ui/ControlArray.h"
#include "ui/MenuItem.h"

namespace tarnview {

/// Puts a path on top of a list of at most so many; one that is in it already (case aside) moves
/// there.
void AddRecentPath(std::vector<std::string>& paths, const std::string& path, std::size_t most);

/// "&1 run.pow", of the entry at a place that counts from 1.
std::string RecentCaption(int place, const std::string& path);

/// Shows the paths, the latest first, as the entries of a menu; the rule before them is there with
/// the first.
void ShowRecentPaths(ControlArray<MenuItem>& entries, MenuItem& separator,
                     const std::vector<std::string>& paths);

}  // namespace tarnview
