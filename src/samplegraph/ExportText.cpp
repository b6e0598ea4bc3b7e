#include "samplegraph/ExportText.h"

#include "base/LargeMemory.h"
#include "base/RuntimeError.h"
#include "model/CellText.h"

namespace tarnview {
namespace {

/// "Path/File access error" of the run-time errors.
constexpr long kCannotWrite = 75;

constexpr std::size_t kUsualCell = 8;

void AddExportNames(std::string& out, const std::vector<int>& columns,
                    const clsLogDataItems& items) {
  std::string between;
  for (const int column : columns) {
    out += between + items.Item(column).strShortName;
    between = ",";
  }
  out += kExportLineEnd;
}

}  // namespace

std::string ExportHead(const std::string& banner, const std::string& strLogFile,
                       const std::string& fileType) {
  return banner + kExportLineEnd + "Original Data Log Path and File Name: " + strLogFile +
         kExportLineEnd + "Original Data Log File Type: " + fileType + kExportLineEnd;
}

void AddExportTable(std::string& out, const OpenLog& log, const std::vector<int>& columns,
                    const std::vector<std::int32_t>& samples,
                    const std::function<void(std::size_t line)>& before) {
  out.reserve(out.size() + columns.size() * kUsualCell * (samples.size() + 1));
  PreferLargePages(out.data(), out.capacity());
  AddExportNames(out, columns, *log.gcolDataItems);
  CellTexts cells(log, columns);
  for (std::size_t line = 0; line < samples.size(); ++line) {
    before(line);
    out.append(cells.Line(samples[line])).append(kExportLineEnd);
  }
}

void WriteExport(FileSystem& files, const std::string& strFile, const std::string& text) {
  if (!files.Write(strFile, text))
    throw RuntimeError(kCannotWrite, "Path/File access error: " + strFile);
}

}  // namespace tarnview
