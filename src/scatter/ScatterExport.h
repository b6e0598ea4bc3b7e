#pragma once

#include <string>
#include <vector>

#include "base/FileSystem.h"
#include "desk/StatusArea.h"
#include "model/OpenLog.h"
#include "scatter/ScatterDrawing.h"

namespace tarnview {

/// Writes the points of a scatter graph to a comma-separated text: "Sample" and the axes, then
/// `listed`, the items of the main window's list, none of them twice. The log must be the one that
/// was drawn; `fileType` is its type's name. A file that cannot be written is a RuntimeError.
void ExportScatterGraph(const std::string& strFile, const ScatterDrawing& graph,
                        const std::vector<int>& listed, const OpenLog& log,
                        const std::string& fileType, FileSystem& files, StatusArea& status);

}  // namespace tarnview
