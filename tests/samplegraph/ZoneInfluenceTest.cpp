#include <gtest/gtest.h>

#include "model/Catalogue.h"
#include "model/Column.h"
#include "samplegraph/ZoneInfluence.h"
#include "samplegraph/ZoneInfluencePanel.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

std::string Names(const ZoneInfluence& found) {
  return found.lowerLow + " " + found.lowerHigh + " " + found.upperLow + " " + found.upperHigh;
}

TEST(ZoneInfluenceTest, NamesTheFourZonesAndPlacesTheSample) {
  const struct {
    double rpm, kPa;
    bool sixRows;
    const char* names;
    double up, across;
  } kRows[] = {
      // clang-format off
      {2600, 60, false, "220 225 320 325", 0, 0.7},    {2499, 39.5, false, "120 125 220 225", 0.4875, 0.498},
      {2250, 60, false, "220 225 320 325", 0, 0},      {2749, 60, false, "220 225 320 325", 0, 0.998},
      {100, 20, false, "100 105 200 205", 0, 0},       {7800, 500, false, "570 575 670 675", 0.975, 0.998},
      {3000, 10, false, "025 030 125 130", 0.75, 0.5}, {3000, 30, true, "125 130 225 230", 0, 0.5},
      {3000, 43, true, "125 130 225 230", 1, 0.5},     {3000, 69, true, "325 330 425 430", 1, 0.5},
      {3000, 83, true, "425 430 525 530", 1, 0.5},     {3000, 83.5, true, "525 530 625 630", -0.5 / 12, 0.5},
      {3000, 200, true, "525 530 625 630", 1, 0.5},    {3000, 10, true, "125 130 225 230", 0, 0.5},
      // clang-format on
  };
  for (const auto& row : kRows) {
    const ZoneInfluence found = FindZoneInfluence(row.rpm, row.kPa, row.sixRows);
    EXPECT_EQ(Names(found), row.names) << row.rpm << " " << row.kPa;
    EXPECT_DOUBLE_EQ(found.up, row.up) << row.rpm << " " << row.kPa;
    EXPECT_NEAR(found.across, row.across, 1e-9) << row.rpm << " " << row.kPa;
  }
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
  std::string told;
  for (const auto& [wanted, sample] :
       {std::pair{true, 1}, {true, 2}, {true, 0}, {false, 2}, {true, 2}}) {
    panel.gblnDisplayZoneInfluence = wanted;
    selection.Highlight(sample);
    panel.DisplayZoneInfluence();
    panel.RefreshZoneInfluence();
    for (const auto& label : window.labels) told += label->Caption() + " ";
    told += std::string(window.frame.Visible() ? "seen" : "") +
            (window.item.Checked() ? " ticked" : "") + "\n";
  }
  EXPECT_EQ(told, R"(105 110 205 210 seen ticked
115 120 215 220 seen ticked
115 120 215 220 seen ticked
115 120 215 220 
115 120 215 220 seen ticked
)");
}

}  // namespace
}  // namespace tarnview
