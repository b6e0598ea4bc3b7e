#include "desk/ColourScheme.h"
#include "support/Table.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

/// The number of a scheme: whether the desktop's face is behind it, its ground, text and grid; then
/// the sample that stays selected, of the curve that stays.
TEST(ColourScheme, OfAChartOnShowChangesItsColoursAlone) {
  RecordingHost host;
  Form window(host, "frmAny", "");
  Chart chart(window, "chAny");
  ChartDescription data;
  ChartSeries curve;
  curve.y = {5, 6, 7};
  data.kind = Curves{{curve}};
  chart.SetData(data);
  chart.SelectPoint(1, 2);
  ExpectTable(
      [&](const TableRow& row) {
        TakeColourScheme(chart, row.Int(0));
        const ChartColours& now = chart.Data().colours;
        return (now.systemBackdrop ? "desktop " : "") + std::to_string(now.backdrop) + " " +
               std::to_string(now.text) + " " + std::to_string(now.grid) + ", " +
               std::to_string(chart.SelectedSeries()) + " " +
               std::to_string(chart.SelectedPoint()) + " of " +
               std::to_string(chart.Data().Series()[0].y.size());
      },
      R"(
0 -> 16777215 0 0, 1 2 of 3 | 1 -> desktop 12632256 0 0, 1 2 of 3 | 2 -> 0 16777215 8421504, 1 2 of 3 | 3 -> 16777215 0 0, 1 2 of 3 | 4 -> 16777215 0 0, 1 2 of 3
)");
  chart.SelectPoint(0, 0);
  TakeColourScheme(chart, 1);
  EXPECT_EQ(chart.SelectedPoint(), 0);
}

}  // namespace
}  // namespace tarnview
