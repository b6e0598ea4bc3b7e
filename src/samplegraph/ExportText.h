#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/FileSystem.h"
#include "model/OpenLog.h"

namespace tarnview {

// The parts of the comma-separated texts that graphs are exported to. The format knows no quoting.

inline constexpr const char* kExportLineEnd = "\r\n";

/// The banner, the log's path and the name of its type, a line each.
std::string ExportHead(const std::string& banner, const std::string& strLogFile,
                       const std::string& fileType);
/// The line of the columns' names; a column is a data item (intSeq).
void AddExportNames(std::string& out, const std::vector<int>& columns,
                    const clsLogDataItems& items);

/// A file that cannot be written is a RuntimeError.
void WriteExport(FileSystem& files, const std::string& strFile, const std::string& text);

}  // namespace tarnview
