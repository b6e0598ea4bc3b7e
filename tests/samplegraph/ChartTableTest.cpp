#include "base/Numbers.h"
#include "model/Catalogue.h"
#include "samplegraph/ChartTable.h"
#include "support/AddSample.h"
#include "support/Table.h"

namespace tarnview {
namespace {

/// Twenty samples 81.9 ms apart, RPM from 1000 up, knock at four; the number of the fifth is out of
/// order.
TEST(ChartTable, PlotsEveryStepThRowOfTheRangeByItsStoreIndex) {
  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
  log.Clear(catalogue.gcolFixedDataItems, 20);
  for (int row = 0; row < 20; ++row)
    AddSample(log, {{kSample, row + 1},
                    {kSecs, (row + 1) * 819},
                    {kRPM, 1000 + row},
                    {kMAP, 403},
                    {kIAdv, -50}});
  for (const auto& [row, knock] : {std::pair{3, 95}, {5, 90}, {8, 30}, {13, 70}})
    log.glngDataLog.Set(kKnock, row, knock);
  log.glngDataLog.Set(kSample, 4, 999);
  const std::map<std::string, Column> columns = {
      {"RPM", kRPM}, {"MAP", kMAP}, {"Knock", kKnock}, {"IAdv", kIAdv}};
  const auto told = [&](const TableRow& row) {
    std::vector<int> items;
    for (const std::string& name : Split(row.Text(0), ' '))
      items.push_back(ItemOf(columns.at(name)));
    int examined = 0;
    const PlotWindow window{row.Int(1), row.Int(2), row.Int(3), row.Int(4), row.Int(5)};
    const ChartTable table = BuildChartTable(log, items, window, [&](std::int32_t) { ++examined; });
    std::string all = "x";
    for (int n = 0; n <= table.LastRow(); ++n) all += " " + NumberText(table.X(n));
    for (std::size_t item = 0; item < items.size(); ++item) {
      all += "; " + table.headings[item];
      for (const double y : table.y[item]) all += " " + NumberText(y);
    }
    return all + "; from " + NumberText(table.lowestX) + " to " + NumberText(table.highestX) +
           ", up to " + NumberText(table.highestY) + ", down to " + NumberText(table.lowestY) +
           ", " + std::to_string(examined) + " examined";
  };
  ExpectTable(told, R"(
# Items, the range as sample numbers and as rows, the step: rows of the store that are its multiples.
RPM MAP, 3, 20, 2, 19, 4 -> x 0 0.7371 1.0647 1.3923; RPM 10.08 10.12 10.16; MAP 40.3 40.3 40.3; from 0.7371 to 1.3923, up to 40.3, down to 0, 0 examined
# A knock between two plotted rows shows at the next, be that out of the range; unthinned it is the plain value.
Knock, 1, 20, 0, 19, 4 -> x 0 0.0819 0.7371 1.0647 1.3923; Knock 0 90 0 70; from 0.0819 to 1.3923, up to 90, down to 0, 1 examined
Knock, 6, 10, 5, 9, 1 -> x 0 0.4914 0.5733 0.6552 0.7371 0.819; Knock 90 0 0 30 0; from 0.4914 to 0.819, up to 90, down to 0, 5 examined
Knock, 1, 8, 0, 7, 1 -> x 0 0.0819 0.1638 0.2457 0.3276 0.4914 0.5733 0.6552; Knock 0 0 0 95 90 0 0; from 0.0819 to 0.6552, up to 95, down to 0, 8 examined
IAdv, 2, 3, 1, 2, 1 -> x 0 0.1638 0.2457; IAdv -5 -5; from 0.1638 to 0.2457, up to 0, down to -5, 2 examined
)");
}

}  // namespace
}  // namespace tarnview
