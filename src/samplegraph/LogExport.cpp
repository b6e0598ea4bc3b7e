#include "samplegraph/LogExport.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RuntimeError.h"
#include "model/Column.h"
#include "samplegraph/LocateSample.h"

namespace tarnview {
namespace {

constexpr std::int32_t kProgressUpdates = 200;
/// "Path/File access error" of the run-time errors.
constexpr long kCannotWrite = 75;
constexpr const char* kLineEnd = "\r\n";

}  // namespace

std::string GetExportPathFile(const std::string& strLogFile) { return WithoutExtension(strLogFile) + ".csv"; }

LogExport::LogExport(const Controls& controls, const PlotRange& range, const OpenLog& log, FileSystem& files,
                     StatusArea& status)
    : controls_(controls), range_(range), log_(log), files_(files), status_(status) {}

void LogExport::ExportDataLog(const std::string& strFile, const std::string& fileType) {
  // The number in the box is the guess as well.
  const auto from = static_cast<std::int32_t>(range_.From()), to = static_cast<std::int32_t>(range_.To());
  const std::int32_t last = LocateSample(log_, to, to);
  const std::int32_t first = std::min(LocateSample(log_, from, from), last);
  const std::int32_t interval = std::max((last - first) / kProgressUpdates, 1);
  status_.ShowProgressInStatusBar(std::max(last - first, 1));
  const std::vector<int> columns = Columns();
  std::string out = Heading(columns, fileType);
  for (std::int32_t index = first; index <= last; ++index) {
    if (index % interval == 0)
      status_.Progress("Exporting sample " + log_.FormatDataItem(ItemOf(kSample), index), index - first);
    AddSample(out, columns, index);
  }
  if (!files_.Write(strFile, out)) throw RuntimeError(kCannotWrite, "Path/File access error: " + strFile);
}

std::vector<int> LogExport::Columns() const {
  std::vector<int> columns{ItemOf(kSample), ItemOf(kSecs)};
  for (const auto& row : controls_.lvwSampleDetails.Rows())
    if (row.checked || !controls_.chkShowCheckedOnly.Value) columns.push_back(StringToLong(row.tag));
  return columns;
}

std::string LogExport::Heading(const std::vector<int>& columns, const std::string& fileType) const {
  std::string out = std::string("TARNVIEW EXPORT FILE") + kLineEnd +
                    "Original Data Log Path and File Name: " + log_.gstrCurrentFile + kLineEnd +
                    "Original Data Log File Type: " + fileType + kLineEnd + kLineEnd;
  for (std::size_t i = 0; i < columns.size(); ++i)
    out += (i > 0 ? "," : "") + log_.gcolDataItems->Item(columns[i]).strShortName;
  return out + kLineEnd;
}

void LogExport::AddSample(std::string& out, const std::vector<int>& columns, std::int32_t index) const {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (i > 0) out += ',';
    out += log_.FormatDataItem(columns[i], index);
  }
  out += kLineEnd;
}

}  // namespace tarnview
