#include "samplegraph/ExportText.h"

#include "base/RuntimeError.h"

namespace tarnview {
namespace {

/// "Path/File access error" of the run-time errors.
constexpr long kCannotWrite = 75;

}  // namespace

std::string ExportHead(const std::string& banner, const std::string& strLogFile,
                       const std::string& fileType) {
  return banner + kExportLineEnd + "Original Data Log Path and File Name: " + strLogFile +
         kExportLineEnd + "Original Data Log File Type: " + fileType + kExportLineEnd;
}

void AddExportNames(std::string& out, const std::vector<int>& columns,
                    const clsLogDataItems& items) {
  std::string between;
  for (const int column : columns) {
    out += between + items.Item(column).strShortName;
    between = ",";
  }
  out += kExportLineEnd;
}

void WriteExport(FileSystem& files, const std::string& strFile, const std::string& text) {
  if (!files.Write(strFile, text))
    throw RuntimeError(kCannotWrite, "Path/File access error: " + strFile);
}

}  // namespace tarnview
