#include "base/Numbers.h"
#include "model/Catalogue.h"
#include "model/Column.h"
#include "samplegraph/ZoneInfluence.h"
#include "samplegraph/ZoneInfluencePanel.h"
#include "support/Table.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

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

TEST(ZoneInfluencePanel, ShowsTheHighlightedSampleWhileItIsWanted) {
  struct Window : Form {
    explicit Window(Host& itsHost) : Form(itsHost, "frmTry", "") {}
    Frame frame{*this, "fra", ""};
    ControlArray<Label> labels{*this, "lbl", UpTo(4), ""};
    Picture picture{*this, "pic", 1500, 900};
    MenuItem item{*this, "mnu", ""};
    CommandButton draw{*this, "cmd", ""};
  };
  RecordingHost host;
  Window window(host);
  const Catalogue catalogue = BuildDataItemCatalogue();
  OpenLog log;
  log.Clear(catalogue.gcolFixedDataItems, 2);
  for (int n = 1; n <= 2; ++n) {
    log.glngDataLog.Set(kSample, log.glngDataLog.AddRow(), n);
    log.glngDataLog.Set(kRPM, n - 1, 1000 * n);
    log.glngDataLog.Set(kMAP, n - 1, 400);
  }
  log.glngLastSample = 1;
  log.glngFirstSampleTime = 1;
  log.glngLastSampleTime = 2;
  log.gblnSamplesLoaded = log.gblnZonesLoaded = true;
  Selection selection;
  ZoneInfluencePanel panel({window.frame, window.labels, window.picture, window.item, window.draw},
                           selection, log);
  const auto told = [&](const TableRow& row) {
    panel.gblnDisplayZoneInfluence = row.Text(0) == "on";
    selection.Highlight(row.Int(1));
    panel.DisplayZoneInfluence();
    panel.RefreshZoneInfluence();
    std::string all;
    for (const auto& label : window.labels) all += label->Caption() + " ";
    return all + (window.frame.Visible() ? "seen" : "hidden") +
           (window.item.Checked() ? " ticked" : "");
  };
  ExpectTable(told, R"(
on, 1 -> 105 110 205 210 seen ticked | on, 2 -> 115 120 215 220 seen ticked | on, 0 -> 115 120 215 220 seen ticked
off, 1 -> 115 120 215 220 hidden | on, 2 -> 115 120 215 220 seen ticked
)");
}

}  // namespace
}  // namespace tarnview
