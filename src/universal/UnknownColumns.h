#pragma once

#include <string>
#include <vector>

#include "base/Clock.h"
#include "base/FileSystem.h"

namespace tarnview {

inline constexpr const char* kUnknownColumnsFile = "Universal Load Unknown Columns.txt";

/// Writes the report of a log's columns that its definition does not know, in place of any earlier
/// one. `folder` ends in a separator. The report's path; empty if it could not be written.
std::string WriteUnknownUniversalColumns(FileSystem& files, const Moment& now,
                                         const std::string& folder,
                                         const std::string& definitionPath,
                                         const std::string& logPath,
                                         const std::vector<std::string>& columns);

/// Makes "NewDataLogDescription.txt", which tells outside programs of a log, in a folder that ends
/// in a separator.
bool CreateNewDataLogDescriptionFile(FileSystem& files, const std::string& folder,
                                     const std::string& strPath);

}  // namespace tarnview
