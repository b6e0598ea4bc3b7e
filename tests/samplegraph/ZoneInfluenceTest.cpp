#include "WholeGraph.h"
#include "base/Numbers.h"
#include "samplegraph/ZoneInfluence.h"
#include "samplegraph/ZoneInfluencePanel.h"

namespace tarnview {
namespace {

TEST(ZoneInfluenceTest, NamesTheFourZonesAndPlacesTheSample) {
  const auto told = [](const TableRow& row) {
    const ZoneInfluence found = FindZoneInfluence(row.Number(0), row.Number(1), row.Count() > 2);
    return found.lowerLow + " " + found.lowerHigh + " " + found.upperLow + " " + found.upperHigh +
           ", up " + FixedText(found.up, 4) + ", across " + FixedText(found.across, 4);
  };
  ExpectTable(told, R"(
2600, 60 -> 220 225 320 325, up 0.0000, across 0.7000 | 2499, 39.5 -> 120 125 220 225, up 0.4875, across 0.4980 | 2250, 60 -> 220 225 320 325, up 0.0000, across 0.0000
2749, 60 -> 220 225 320 325, up 0.0000, across 0.9980 | 100, 20 -> 100 105 200 205, up 0.0000, across 0.0000 | 7800, 500 -> 570 575 670 675, up 0.9750, across 0.9980
3000, 10 -> 025 030 125 130, up 0.7500, across 0.5000 | 3000, 30, six -> 125 130 225 230, up 0.0000, across 0.5000 | 3000, 43, six -> 125 130 225 230, up 1.0000, across 0.5000
3000, 69, six -> 325 330 425 430, up 1.0000, across 0.5000 | 3000, 83, six -> 425 430 525 530, up 1.0000, across 0.5000 | 3000, 83.5, six -> 525 530 625 630, up -0.0417, across 0.5000
3000, 200, six -> 525 530 625 630, up 1.0000, across 0.5000 | 3000, 10, six -> 125 130 225 230, up 0.0000, across 0.5000
)");
}

using ZoneInfluencePanelTest = WholeGraph;

TEST_F(ZoneInfluencePanelTest, ShowsTheHighlightedSampleWhileItIsWanted) {
  Frame frame{window, "fra", ""};
  ControlArray<Label> labels{window, "lbl", UpTo(4), ""};
  Picture picture{window, "pic", 1500, 900};
  MenuItem item{window, "mnu", ""};
  CommandButton draw{window, "cmd", ""};
  OpenLog(2);
  for (const int row : {0, 1}) {
    log.glngDataLog.Set(kRPM, row, 1000 * (row + 1));
    log.glngDataLog.Set(kMAP, row, 400);
  }
  ZoneInfluencePanel panel({frame, labels, picture, item, draw}, selection, log);
  const auto told = [&](const TableRow& row) {
    panel.gblnDisplayZoneInfluence = row.Text(0) != "off";
    draw.Enabled = row.Text(0) != "no graph";
    log.gblnSamplesLoaded = row.Text(0) != "no log";
    selection.Highlight(row.Int(1));
    panel.DisplayZoneInfluence();
    panel.RefreshZoneInfluence();
    std::string all;
    for (const auto& label : labels) all += label->Caption() + " ";
    return all + (frame.Visible() ? "seen" : "hidden") + (item.Checked() ? " ticked" : "");
  };
  ExpectTable(told, R"(
on, 1 -> 105 110 205 210 seen ticked | on, 2 -> 115 120 215 220 seen ticked | on, 0 -> 115 120 215 220 seen ticked
off, 1 -> 115 120 215 220 hidden | no graph, 1 -> 115 120 215 220 seen ticked | no log, 1 -> 115 120 215 220 seen ticked | on, 1 -> 105 110 205 210 seen ticked
)");
}

}  // namespace
}  // namespace tarnview
