#include "samplegraph/LogExport.h"

#include <algorithm>
#include <numeric>

#include "base/Paths.h"
#include "base/Text.h"
#include "model/Column.h"
#include "model/LocateSample.h"
#include "samplegraph/ExportText.h"
#include "samplegraph/SampleListView.h"

namespace tarnview {
namespace {

constexpr std::int32_t kProgressUpdates = 200;

}  // namespace

std::string GetExportPathFile(const std::string& strLogFile) {
  constexpr const char* kEnding = "csv";
  const bool itsOwn = SameIgnoringCase(GetExtension(strLogFile), kEnding);
  return WithoutExtension(strLogFile) + (itsOwn ? "_export." : ".") + kEnding;
}

LogExport::LogExport(const Controls& controls, const PlotRange& range, const OpenLog& log,
                     FileSystem& files, StatusArea& status)
    : controls_(controls), range_(range), log_(log), files_(files), status_(status) {}

void LogExport::ExportDataLog(const std::string& strFile, const std::string& fileType) {
  // The number in the box is the guess as well.
  const auto from = static_cast<std::int32_t>(range_.From()),
             to = static_cast<std::int32_t>(range_.To());
  const std::int32_t last = LocateSample(log_, to, to);
  const std::int32_t first = std::min(LocateSample(log_, from, from), last);
  const std::int32_t interval = std::max((last - first) / kProgressUpdates, 1);
  status_.ShowProgressInStatusBar(std::max(last - first, 1));
  std::vector<std::int32_t> samples(static_cast<std::size_t>(last - first + 1));
  std::iota(samples.begin(), samples.end(), first);
  std::string out =
      ExportHead("TARNVIEW EXPORT FILE", log_.gstrCurrentFile, fileType) + kExportLineEnd;
  AddExportTable(out, log_, Columns(), samples, [&](std::size_t line) {
    const std::int32_t index = samples[line];
    if (index % interval == 0)
      status_.Progress("Exporting sample " + log_.FormatDataItem(ItemOf(kSample), index),
                       index - first);
  });
  WriteExport(files_, strFile, out);
}

std::vector<int> LogExport::Columns() const {
  std::vector<int> columns{ItemOf(kSample), ItemOf(kSecs)};
  const auto listed = ItemsOfRows(controls_.lvwSampleDetails, controls_.chkShowCheckedOnly.Value);
  columns.insert(columns.end(), listed.begin(), listed.end());
  return columns;
}

}  // namespace tarnview
