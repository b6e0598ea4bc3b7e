#include <gtest/gtest.h>

#include "power/frmCarDefinitionDetails.h"
#include "support/ProgramFixture.h"

namespace tarnview {
namespace {

class PowerWindowsOfProgram : public ProgramFixture {
 protected:
  /// 60 samples of rising rpm.
  void OpenLog() {
    Open(60, "", [](SmallSample& sample) { sample.rpm = 2000 + sample.sample * 40; });
  }
  frmPowerGraph& Front() { return dynamic_cast<frmPowerGraph&>(*host.Front()); }
};

TEST_F(PowerWindowsOfProgram, AreOpenedFromTheMenuOnceALogIsThere) {
  Start();
  EXPECT_FALSE(Main().mnuModulesPowerGraph.Enabled());
  OpenLog();
  Main().mnuModulesPowerGraph.Do({"click", {}});
  EXPECT_EQ(Front().Caption(), "Tarnview Power Graph - run.txt");
  EXPECT_EQ(Front().txtPlotRangeFrom.Text() + "-" + Front().txtPlotRangeTo.Text(), "1-60");
  EXPECT_EQ(Front().cboCarDefs.Text(), "Original");
  Front().cmdDrawGraph.Do({"click", {}});
  EXPECT_TRUE(Front().Drawn());
}

TEST_F(PowerWindowsOfProgram, KeepTheirGraphWhenTheLogGoes) {
  OpenLog();
  frmPowerGraph& window = Main().Power().Open();
  window.cmdDrawGraph.Press();
  EXPECT_TRUE(window.mnuToolsCopy.Enabled());
  files.files["/other.txt"] = SmallLog(30);
  Main().LoadDataFile("/other.txt", 1);
  EXPECT_TRUE(window.IsShown());
  EXPECT_EQ(window.chPowerGraph.Data().Series().size(), 2u);
  EXPECT_FALSE(window.mnuToolsCopy.Enabled());
  EXPECT_EQ(window.txtPlotRangeTo.Text(), "30");
  EXPECT_EQ(window.Caption(), "Tarnview Power Graph - run.txt");
  Main().Unload();
  EXPECT_FALSE(window.IsShown());
}

TEST_F(PowerWindowsOfProgram, CopyTheRunToTheSampleGraph) {
  OpenLog();
  frmPowerGraph& window = Main().Power().Open();
  Main().Details().SetCheckedItems({ItemOf(kPower)});
  Draw("10", "40");
  Act(window,
      "type txtPlotRangeFrom 10\ntype txtPlotRangeTo 40\nclick cmdDrawGraph\n"
      "click mnuToolsCopy");
  EXPECT_GT(Main().chSampleGraph.Data().Series().at(0).y.at(10), 0) << "drawn anew";
  EXPECT_EQ(Range(), "10-40");
  EXPECT_EQ(Main().Selected().lngHighlightSample(), 25);
  EXPECT_GT(Log().glngDataLog(kPower, 20), 0);
  EXPECT_EQ(Log().glngDataLog(kPower, 5), 0);
}

TEST_F(PowerWindowsOfProgram, CarsAreKeptInTheirEditorAndListedAtOnce) {
  OpenLog();
  frmPowerGraph& window = Main().Power().Open();
  host.work = [](Form& form) {
    if (auto* details = dynamic_cast<frmCarDefinitionDetails*>(&form)) {
      details->txtName.Text = "Mine";
      return details->cmdOK.Press();
    }
    auto& list = dynamic_cast<frmMaint&>(form);
    EXPECT_EQ(list.Caption(), "Car Definition Editor Editor");
    EXPECT_EQ(list.fraNameList.Caption(), "&Car Definitions");
    EXPECT_FALSE(list.cboLogFamily.Visible());
    list.cmdNew.Press();
    list.cmdPresetUp.Press();
    list.cmdOK.Press();
  };
  Main().mnuCustomiseCarDefs.Do({"click", {}});
  EXPECT_EQ(window.cboCarDefs.Entries(), (std::vector<std::string>{"Mine", "Original"}));
  EXPECT_EQ(window.cboCarDefs.Text(), "Original");
}

TEST_F(PowerWindowsOfProgram, SpeedGraphsOpenBesideThem) {
  OpenLog();
  frmPowerGraph& window = Main().Power().Open();
  window.cmdDrawGraph.Press();
  window.mnuToolsSpeed.Do({"click", {}});
  EXPECT_EQ(host.Front()->name, "frmSpeedGraph");
  EXPECT_EQ(host.Front()->Caption(), "Tarnview Speed Graph - run.txt");
}

TEST_F(PowerWindowsOfProgram, RecentGraphsAreTheSameInAll) {
  OpenLog();
  frmPowerGraph& one = Main().Power().Open();
  frmPowerGraph& other = Main().Power().Open();
  files.files["/a.pow"] = "Calculation Parameters:\n";
  EXPECT_TRUE(one.LoadBenchmark("/a.pow"));
  EXPECT_EQ(other.mnuFileRecent(0).Caption(), "&1 /a.pow");
  other.mnuFileRecent(0).Do({"click", {}});
  EXPECT_EQ(other.lblBenchmark2.Caption(), "a");
  EXPECT_EQ(Set().recentPowerGraphFiles, (std::vector<std::string>{"/a.pow"}));
}

}  // namespace
}  // namespace tarnview
