#include "samplegraph/ExportText.h"

#include "base/RuntimeError.h"

namespace tarnview {
namespace {

/// "Path/File access error" of the run-time errors.
constexpr long kCannotWrite = 75;

template <class TextOf>
void AddLine(std::string& out, const std::vector<int>& columns, const TextOf& textOf) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (i > 0) out += ',';
    out += textOf(columns[i]);
  }
  out += kExportLineEnd;
}

}  // namespace

std::string ExportHead(const std::string& banner, const std::string& strLogFile, const std::string& fileType) {
  return banner + kExportLineEnd + "Original Data Log Path and File Name: " + strLogFile + kExportLineEnd +
         "Original Data Log File Type: " + fileType + kExportLineEnd;
}

void AddExportNames(std::string& out, const std::vector<int>& columns, const clsLogDataItems& items) {
  AddLine(out, columns, [&](int column) { return items.Item(column).strShortName; });
}

void AddExportSample(std::string& out, const std::vector<int>& columns, std::int32_t index, const OpenLog& log) {
  AddLine(out, columns, [&](int column) { return log.FormatDataItem(column, index); });
}

void WriteExport(FileSystem& files, const std::string& strFile, const std::string& text) {
  if (!files.Write(strFile, text)) throw RuntimeError(kCannotWrite, "Path/File access error: " + strFile);
}

}  // namespace tarnview
