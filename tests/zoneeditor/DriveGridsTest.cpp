#include <gtest/gtest.h>

#include "model/Column.h"
#include "zoneeditor/EditorWorld.h"

namespace tarnview {
namespace {

/// An editor on a drive of which the plot range is the first 60 samples: 20 at 1000 RPM, 40 at
/// 2000, and then 30 at 3000.
class DriveGridsTest : public testing::Test, protected EditorWorld, protected DriveGrids::Drive {
 protected:
  DriveGridsTest() {
    log.Clear(catalogue.gcolFixedDataItems, 100);
    log.zones.gblnZoneLayout6 = false;
    Add(20, 1000, 14560, 7);
    Add(40, 2000, 13300, 9);
    Add(30, 3000, 15400, 0);
    log.glngLastSample = log.glngLastSampleTime = 89;
    ZoneEditorParameters parameters;
    parameters.map.zones.fill(100);
    parameters.map.zones[5] = 2;
    parameters.map.chip = {1.8, MakeDate(2005, 2, 10), 3};
    parameters.comparison = ComparisonZones{};
    Open(parameters, this);
  }
  ~DriveGridsTest() override { window.reset(); }  // it looks at the drive to its end
  void Add(int count, int RPM, int airFuel, int knock) {
    for (int i = 0; i < count; ++i) {
      const int row = log.glngDataLog.AddRow();
      log.glngDataLog.Set(kSample, row, row);
      log.glngDataLog.Set(kRPM, row, RPM);
      log.glngDataLog.Set(kMAP, row, 200);
      log.glngDataLog.Set(kAF, row, airFuel);
      log.glngDataLog.Set(kAFTgt, row, 14000);
      log.glngDataLog.Set(kKnock, row, knock);
    }
  }
  const OpenLog& Log() const override { return log; }
  DrivenRange PlotRange() const override { return {0, 59}; }
  int CurrentSample() const override { return current; }
  void SelectSample(int index) override { current = index; }

  void Do(const char* control, const Action& action, int index = -1) {
    window->Find(control, index)->Do(action);
  }
  /// The first row of a grid of six, cells without a text left out.
  static std::string RowOf(const Grid& grid) {
    std::string row;
    for (int column = 1; column < grid.Columns(); ++column)
      if (!grid.Text(1, column).empty())
        row += std::to_string(column) + ":" + grid.Text(1, column) + " ";
    return row;
  }

  OpenLog log;
  int current = -1;
};

TEST_F(DriveGridsTest, ShowsWhatIsAskedForOfTheRangeOrTheLog) {
  EXPECT_FALSE(window->Driven.fraDrive(0).Visible);
  const struct {
    const char* show;
    bool wholeLog;
    const char* caption;
    const char* row;
  } cases[] = {
      {"Visits", false, "Visits (Samples)", "3:20 5:40 "},
      {"Air/Fuel Error", false, "Air/Fuel Error (%)", "3:+4.0 5:-5.0 "},
      {"Knock", true, "Highest Knock", "3:7 5:9 7:0 "},
      {"Visits", true, "Visits (Samples)", "3:20 5:40 7:30 "},
  };
  for (const auto& c : cases) {
    window->Driven.chkWholeLog.Value = c.wholeLog;
    Do("cboShowOnGrid", {"choose", {c.show}});
    for (const int tab : {0, 1}) {
      EXPECT_TRUE(window->Driven.fraDrive(tab).Visible);
      EXPECT_EQ(window->Driven.fraDrive(tab).Caption(), c.caption);
      EXPECT_EQ(RowOf(window->Driven.grdDrive(tab)), c.row);
    }
  }
  const Grid& grid = window->Driven.grdDrive(0);
  EXPECT_EQ(grid.Text(6, 0) + grid.Text(0, 16), "220 kPa 60075");
  EXPECT_EQ(grid.At(1, 2).toolTip, "No samples");
  EXPECT_EQ(grid.At(1, 3).toolTip, "20 samples, air/fuel +4.0 %, knock up to 7");
  EXPECT_NE(grid.At(1, 3).backColour, grid.At(1, 5).backColour) << "more is another colour";
  Do("cboShowOnGrid", {"choose", {"Air/Fuel Error"}});
  EXPECT_EQ(grid.At(1, 3).colour, 255) << "lean";
  EXPECT_EQ(grid.At(1, 5).colour, kDesktopColour) << "rich";
  Do("cboShowOnGrid", {"choose", {"Nothing"}});
  EXPECT_FALSE(window->Driven.fraDrive(1).Visible);
}

TEST_F(DriveGridsTest, ACellGoesThroughItsSamplesInTheGraph) {
  EXPECT_FALSE(window->Driven.cmdNextInCell.Enabled);
  EXPECT_FALSE(window->Grids.At(SheetGrid::Fuel).Ring().has_value());
  Do("cboShowOnGrid", {"choose", {"Visits"}});
  Do("grdDrive", {"cell", {"1", "5"}}, 0);
  EXPECT_EQ(current, 20);
  EXPECT_EQ(window->lblStatus.Caption(), "Sample 20, one of 40 in this cell.");
  for (const int grid : {0, 3})
    EXPECT_EQ(window->Grids.grdData(grid).Ring(), (GridPoint{1, 4.5})) << grid;
  Do("cmdNextInCell", {"click", {}});
  EXPECT_EQ(current, 21);
  Do("grdDrive", {"cell", {"1", "5"}}, 0);
  EXPECT_EQ(current, 22) << "the same cell once more";
  Do("grdDrive", {"cell", {"2", "5"}}, 1);
  EXPECT_EQ(window->lblStatus.Caption(), "No sample lies in this cell.");
  Do("grdDrive", {"cell", {"1", "5"}}, 1);
  EXPECT_EQ(current, 20) << "another grid starts again";
  window->Driven.grdDrive(1).SetFocus();
  window->Press(*ParseKeys("Ctrl+C"));
  EXPECT_EQ(host.clipboard, "40\n");
}

TEST_F(DriveGridsTest, AProposalIsAppliedAsOneStep) {
  EXPECT_FALSE(window->Driven.cmdApplyProposal.Enabled);
  Do("cmdPropose", {"click", {}});
  EXPECT_EQ(RowOf(window->Driven.grdProposal), "5:-5 ");
  EXPECT_TRUE(window->Driven.fraProposal.Visible);
  EXPECT_TRUE(window->Driven.grdProposal.At(6, 1).blackedOut);
  EXPECT_EQ(window->lblStatus.Caption(), "1 fuel cell would be changed. Nothing is changed yet.");
  EXPECT_EQ(window->History().Done(), 0u);
  window->Driven.chkWholeLog.Value = true;
  EXPECT_EQ(RowOf(window->Driven.grdProposal), "5:-5 7:+5 ");
  Do("grdData", {"cell", {"1", "7", "200"}}, 0);
  EXPECT_EQ(RowOf(window->Driven.grdProposal), "5:-5 7:+10 ") << "5 % of what is there now";
  Do("cmdApplyProposal", {"click", {}});
  EXPECT_EQ(window->History().UndoName(), "Proposal on 2 fuel cells");
  EXPECT_EQ(window->Map().zones[36], 95);
  EXPECT_EQ(window->Map().zones[38], 210);
  EXPECT_FALSE(window->Driven.fraProposal.Visible);
  EXPECT_FALSE(window->Driven.cmdApplyProposal.Enabled);
  window->mnuEditUndo.Do({"click", {}});
  EXPECT_EQ(window->Map().zones[36], 100);
  window->Driven.chkWholeLog.Value = false;
  log.glngDataLog.Set(kRPM, 59, 9000);
  for (int row = 20; row < 40; ++row) log.glngDataLog.Set(kRPM, row, 9000);
  Do("cmdPropose", {"click", {}});
  EXPECT_EQ(window->lblStatus.Caption(), "No fuel cell with 30 samples is off its target.");
  EXPECT_FALSE(window->Driven.fraProposal.Visible);
}

TEST_F(DriveGridsTest, WithoutSamplesThereIsNothingToAskFor) {
  ZoneEditorParameters parameters;
  parameters.map.zones.fill(100);
  Open(parameters);
  for (const char* control : {"lblShowOnGrid", "cboShowOnGrid", "chkWholeLog", "cmdNextInCell",
                              "cmdPropose", "cmdApplyProposal"})
    EXPECT_FALSE(window->Find(control)->Enabled) << control;
}

}  // namespace
}  // namespace tarnview
