#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/ErrorLog.h"
#include "base/FileSystem.h"
#include "base/MessageTable.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// A definition file that lies beside the program.
struct DefinitionChoice {
  std::string strName;
  std::string path;
};

/// Loads definition files. What is wrong with one is told by its message and goes to the error log.
class DefinitionFiles {
 public:
  DefinitionFiles(FileSystem& files, TellMessage tell, ErrorLog& errors,
                  const clsLogDataItems& catalogue)
      : files_(files), tell_(std::move(tell)), errors_(errors), catalogue_(catalogue) {}

  /// Nothing for a file with a fault. `blnQuiet`: the user is not told.
  std::optional<clsDataLog> LoadDataLogDefinition(const std::string& strFileName,
                                                  bool blnQuiet = false);
  /// The file's definition; the built-in one for an empty name or a file with a fault.
  clsDataLog LoadDataLogDefinitionWrapper(const std::string& strFileName);
  /// The good definitions among the text files of a folder, sorted by file name.
  std::vector<DefinitionChoice> GenericFileLocation(const std::string& folder);

 private:
  clsDataLog Load(const std::string& path);

  FileSystem& files_;
  TellMessage tell_;
  ErrorLog& errors_;
  const clsLogDataItems& catalogue_;
};

}  // namespace tarnview
