#include "scatter/ScatterExport.h"

#include <algorithm>

#include "model/CellText.h"
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
  const std::vector<int> columns = Columns(graph.dblScatterData(), listed);
  CellTexts cells(log, columns);
  AddExportNames(out, columns, *log.gcolDataItems);
  const int count = static_cast<int>(graph.dblScatterData().x.size());
  const int interval = std::max(count / kProgressUpdates, 1);
  status.ShowProgressInStatusBar(count);
  for (int j = 0; j < count; ++j) {
    const std::int32_t index = graph.IndexOfPoint(j + 1);
    if (j % interval == 0)
      status.Progress("Exporting sample " + std::to_string(log.Sample(index)), j);
    out.append(cells.Line(index)).append(kExportLineEnd);
  }
  WriteExport(files, strFile, out);
}

}  // namespace tarnview
