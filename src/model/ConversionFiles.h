#pragma once

#include <string>
#include <utility>

#include "base/ErrorLog.h"
#include "base/FileSystem.h"
#include "base/MessageTable.h"
#include "model/ConversionTables.h"

namespace tarnview {

/// Reads the files of the two conversion tables. A file that is missing, or whose first line is no
/// known heading, silently gives the built-in table; one that is there and cannot be read does so
/// with message 4.
class ConversionFiles {
 public:
  ConversionFiles(FileSystem& files, TellMessage tell, ErrorLog& log)
      : files_(files), tell_(std::move(tell)), log_(log) {}

  ConversionTable LoadConversionTable(const std::string& path, const ConversionTable& defaults);

  /// Each reads its file when its reload flag is set, and clears the flag.
  void LoadO2ConvFile(ConversionTables& tables, const std::string& path);
  void LoadAuxInputConvFile(ConversionTables& tables, const std::string& path);

 private:
  FileSystem& files_;
  TellMessage tell_;
  ErrorLog& log_;
};

}  // namespace tarnview
