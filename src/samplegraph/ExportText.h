#pragma once

#include <cstdint>
#include <functional>
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
/// The line of the columns' names, and one for each sample; a column is a data item (intSeq), a
/// sample its index. `before` is told which line comes next, from 0.
void AddExportTable(std::string& out, const OpenLog& log, const std::vector<int>& columns,
                    const std::vector<std::int32_t>& samples,
                    const std::function<void(std::size_t line)>& before);

/// A file that cannot be written is a RuntimeError.
void WriteExport(FileSystem& files, const std::string& strFile, const std::string& text);

}  // namespace tarnview
