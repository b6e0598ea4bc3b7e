#include "scatter/ScatterExport.h"

#include <algorithm>

#include "model/Column.h"
#include "samplegraph/ExportText.h"

namespace tarnview {
namespace {

constexpr int kProgressUpdates = 200;

/// An axis on "Sample" stands beside it all the same: only the list leaves out what is there
/// already.
std::vector<int> Columns(const PointCloud& points, const std::vector<int>& listed) {
  std::vector<int> columns{ItemOf(kSample), points.xItem, points.yItem};
  std::copy_if(listed.begin(), listed.end(), std::back_inserter(columns), [&](int item) {
    return item != ItemOf(kSample) && item != points.xItem && item != points.yItem;
  });
  return columns;
}

}  // namespace

void ExportScatterGraph(const std::string& strFile, const ScatterDrawing& graph,
                        const std::vector<int>& listed, const OpenLog& log,
                        const std::string& fileType, FileSystem& files, StatusArea& status) {
  std::string out =
      ExportHead("TARNVIEW SCATTER GRAPH EXPORT FILE", graph.strGraphedFile(), fileType);
  out += kExportLineEnd + std::string("Filters:") + kExportLineEnd;
  for (const std::string& filter : graph.Filters()) out += filter + kExportLineEnd;
  out += kExportLineEnd;
  const int count = static_cast<int>(graph.dblScatterData().x.size());
  const int interval = std::max(count / kProgressUpdates, 1);
  std::vector<std::int32_t> samples;
  for (int point = 1; point <= count; ++point) samples.push_back(graph.IndexOfPoint(point));
  status.ShowProgressInStatusBar(count);
  const std::vector<int> columns = Columns(graph.dblScatterData(), listed);
  AddExportTable(out, log, columns, samples, [&](std::size_t line) {
    const int done = static_cast<int>(line);
    if (done % interval == 0)
      status.Progress("Exporting sample " + std::to_string(log.Sample(samples[line])), done);
  });
  WriteExport(files, strFile, out);
}

}  // namespace tarnview
