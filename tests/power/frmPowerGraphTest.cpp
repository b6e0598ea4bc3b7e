#include <gtest/gtest.h>

#include "power/PowerWindowsFixture.h"
#include "power/frmPowerBenchComments.h"
#include "power/frmPowerGraph.h"
#include "support/WindowActions.h"

namespace tarnview {
namespace {

using Ids = std::vector<int>;

constexpr const char* kSaved =
    "Calculation Parameters:\r\nSet Point Power=100 hp\r\nSet Point Speed=115 mph\r\nCalculation "
    "Units=Metric\r\n"
    "Graph Power & Torque Data (RPM, Power, Torque):\r\n2000,074.6,100.0\r\n4000,149.1,135.7\r\n"
    "Graph Speed Data (Time, Speed):\r\n000.10,050.0\r\n000.20,051.0\r\n";

class PowerGraphTest : public PowerWindowsTest {
 protected:
  PowerGraphTest() {
    cars.AddDirect(clsCarDef());
    clsCarDef metric;
    metric.strName = "Metric";
    metric.blnImperialUnits = false;
    metric.lngCarContentsWeight = 80;
    metric.lngSmoothingFactor = 0;
    metric.lngPowerRunGear = 1;
    cars.AddDirect(metric);
    files.files["/b/stock.pow"] = kSaved;
  }
  static std::string Told(const std::vector<ChartMark>& marks) {
    std::string told;
    for (const ChartMark& mark : marks) told += FixedText(mark.x, 0) + ": " + mark.text + ", ";
    return told;
  }
  void LoadSaved(const std::string& path = "/b/stock.pow") {
    host.answers.push_back({Answer::Kind::File, path});
    window->mnuFileOpen.Do({"click", {}});
  }
};

TEST_F(PowerGraphTest, OpensWithTheMainWindowsRangeTheFirstCarAndTheSettingsAir) {
  settings.gintHumidityType = 1;
  settings.gintRelativeHumidity = 15;
  settings.gintDefaultAtmosphericPressure = 101;
  settings.gblnSAECorrection = true;
  Open();
  EXPECT_EQ(Range(), "120-180");
  EXPECT_EQ(Texts(*window, "cboCarDefs cboGear txtWeight txtSmoothFactor txtCorrFactor lblRH"),
            "New|4th|180|7|0.982|'C");
  EXPECT_TRUE(window->chkSAE.Value());
  EXPECT_EQ(Enabled(*window, "cboBenchMarkAction mnuBench mnuFileSave"), "");
  Act(*window, "choose cboCarDefs Metric");
  EXPECT_EQ(Texts(*window, "cboGear txtWeight txtSmoothFactor"), "2nd|80|0");
  Act(*window,
      "choose cboHumidityType Rel. Humidity\ntype txtRH 0\ntype txtAmbTemp 25\n"
      "step updAtmos down\nstep updAtmos down");
  EXPECT_EQ(window->txtCorrFactor.Text(), "1.000");
}

TEST_F(PowerGraphTest, BringsTheRangeIntoTheLogAndToItsLength) {
  Open();
  const struct {
    const char *from, *to, *range;
    Ids boxes;
  } kRows[] = {
      {"100", "1200", "200-1200", {2}},  {"99", "150", "120-150", {}},
      {"1301", "1250", "250-1250", {2}}, {"130", "0", "130-180", {}},
      {"130", "1301", "130-180", {}},    {"130", "99", "130-180", {}},
      {"100", "109", "100-109", {26}},   {"100", "110", "100-110", {}},
      {"200", "150", "149-150", {26}},   {"100", "1100", "100-1100", {}},
      {"x", "y", "120-180", {}},
  };
  for (const auto& row : kRows) {
    Draw(row.from, row.to);
    EXPECT_EQ(Range(), row.range) << row.from << " " << row.to;
    EXPECT_EQ(Boxes(), row.boxes) << row.from << " " << row.to;
  }
}

TEST_F(PowerGraphTest, DrawsCurvesWithLegendsAxesAndFacts) {
  Open();
  Draw("100", "200");
  EXPECT_EQ(Names(),
            "Your Power (85.1 hp @ 3990 rpm, Vmax 109 mph)\nYour Torque (114.2 lbft @ 3990 rpm)\n");
  const ChartDescription& chart = window->chPowerGraph.Data();
  EXPECT_EQ(chart.Series()[0].x.size(), 100u);
  EXPECT_EQ(chart.x.title, "RPM");
  EXPECT_EQ(chart.y.max, 120);
  EXPECT_EQ(chart.y.divisions, 6);
  EXPECT_EQ(Panel(1), "Graph draw complete");
  EXPECT_EQ(Panel(4), "");
  EXPECT_TRUE(window->mnuFileSave.Enabled());
  EXPECT_EQ(Told(chart.marks), "3990: 85.1 hp, 3990: 114.2 lbft, ");
  window->chPowerGraph.Do({"hover", {"2051"}});
  EXPECT_EQ(Panel(3), "2050 rpm: 38.9 hp, 97.2 lbft");
  EXPECT_EQ(Told(window->chPowerGraph.Labels()),
            "2050: 38.9 hp, 2050: 97.2 lbft, 2050: 2050 rpm, ");
  window->chPowerGraph.Do({"hover", {}});
  EXPECT_EQ(Panel(3), "");
  EXPECT_TRUE(window->chPowerGraph.Labels().empty());
  Draw("100", "105");
  EXPECT_EQ(Boxes(), (Ids{26}));
  EXPECT_EQ(window->chPowerGraph.Data().Series().size(), 2u) << "the old graph stays";
}

TEST_F(PowerGraphTest, ACarWithoutARatioDrawsNothingAndSaysWhichField) {
  cars.Item(1).dbl4thGearRatio = 0;
  Open();
  Draw("100", "200");
  EXPECT_EQ(Boxes(), (Ids{63}));
  EXPECT_EQ(Panel(4), "Car definition: check 4th Gear Ratio");
  EXPECT_FALSE(window->Drawn());
}

TEST_F(PowerGraphTest, ABenchmarkIsHiddenShownOrAveraged) {
  Open();
  LoadSaved();
  EXPECT_EQ(Texts(*window, "lblBenchmark2 cboBenchMarkAction mnuFileRecent(0)") + "|" + Panel(1),
            "stock|Show|&1 /b/stock.pow|Loading complete");
  EXPECT_TRUE(window->mnuBench.Enabled());
  settings.recentPowerGraphFiles.resize(12, "/b/old.pow");
  LoadSaved();
  EXPECT_EQ(settings.recentPowerGraphFiles.size(), 9u);
  Draw("100", "200");
  EXPECT_EQ(Names(),
            "Your Power (85.1 hp @ 3990 rpm, Vmax 109 mph)\nYour Torque (114.2 lbft @ 3990 rpm)\n"
            "Benchmark Power (199.9 hp @ 4000 rpm, Vmax 144.9 mph)\nBenchmark Torque (100.0 lbft @ "
            "4000 rpm)\n");
  window->cboBenchMarkAction.Do({"choose", {"Average"}});
  window->cmdDrawGraph.Press();
  EXPECT_EQ(Names().substr(0, 40), "Your Power (142.3 hp @ 3990 rpm, Vmax 12");
  window->cboBenchMarkAction.Do({"choose", {"Hide"}});
  EXPECT_EQ(window->chPowerGraph.Data().Series().size(), 4u) << "until the next draw";
  window->cmdDrawGraph.Press();
  EXPECT_EQ(window->chPowerGraph.Data().Series().size(), 2u);
  window->cboUnits.Do({"choose", {"Metric"}});
  window->cboBenchMarkAction.Do({"choose", {"Show"}});
  window->cmdDrawGraph.Press();
  EXPECT_NE(Names().find("Benchmark Power (149.1 kW @ 4000 rpm, Vmax 233.2 kmh)"),
            std::string::npos)
      << Names();
}

TEST_F(PowerGraphTest, ABenchmarkThatCannotBeReadTakesTheOldOneAway) {
  Open();
  LoadSaved();
  LoadSaved("/b/none.pow");
  EXPECT_EQ(Boxes(), (Ids{33, 0}));
  EXPECT_EQ(Panel(1), "Loading failed");
  EXPECT_EQ(window->lblBenchmark2.Caption(), "");
  EXPECT_EQ(window->cboBenchMarkAction.Text(), "Hide");
  EXPECT_FALSE(window->mnuBenchCalcDet.Enabled());
}

TEST_F(PowerGraphTest, SavesWithACommentAndIsItsOwnBenchmark) {
  Open();
  Draw("100", "130");
  host.work = [](Form& form) {
    auto& comments = dynamic_cast<frmPowerBenchComments&>(form);
    comments.txtComments.Text = "a\r\nb";
    comments.cmdOK.Press();
  };
  host.answers.push_back({Answer::Kind::File, "/b/mine"});
  window->mnuFileSaveAs.Do({"click", {}});
  EXPECT_TRUE(window->Saved());
  const PowerFile saved = ReadPowerFile(files.files["/b/mine.pow"]);
  EXPECT_EQ(saved.plotFrom + "-" + saved.plotTo + " " + saved.comments, "100-130 a  b");
  EXPECT_EQ(saved.points.size(), 30u);
  EXPECT_EQ(saved.speed.size(), 29u);
  host.work = [](Form& form) { dynamic_cast<frmPowerBenchComments&>(form).cmdCancel.Press(); };
  files.files.erase("/b/mine.pow");
  window->mnuFileSave.Do({"click", {}});
  EXPECT_FALSE(window->Saved());
  EXPECT_FALSE(files.files.contains("/b/mine.pow"));
}

TEST_F(PowerGraphTest, CopiesIntoTheLogWhatLiesWithinIt) {
  Open();
  Draw("1290", "1300");
  window->mnuToolsCopy.Do({"click", {}});
  EXPECT_EQ(plotted, "1290-1300 at 1295");
  const OpenLog& log = made->log;
  const int first = 1291 - 100;
  EXPECT_EQ(log.glngDataLog(kPower, first - 1), 0);
  EXPECT_GT(log.glngDataLog(kPower, first), 0);
  EXPECT_GT(log.glngDataLog(kTorque, 1200), 0);
  EXPECT_EQ(log.gcolDataItems->Item(24).GetFormattedData(log.glngDataLog(kSpeed, first)), "426.0");
  Draw("1288", "1299");
  window->mnuToolsCopy.Do({"click", {}});
  EXPECT_EQ(plotted, "1290-1300 at 12951288-1299 at 1294") << "half to even";
  window->LogIsClosing();
  EXPECT_FALSE(window->mnuToolsCopy.Enabled());
  EXPECT_TRUE(window->mnuFilePrint.Enabled());
}

TEST_F(PowerGraphTest, RunsAreFoundAndFillTheRange) {
  Open();
  window->cmdFindRuns.Do({"click", {}});
  ASSERT_EQ(window->lvwRuns.Count(), 1);
  EXPECT_EQ(window->lvwRuns.At(1).texts,
            (std::vector<std::string>{"101", "1300", "2020-26000", "119.9"}));
  window->lvwRuns.Do({"row", {"1"}});
  EXPECT_EQ(Range(), "101-1300");
}

TEST_F(PowerGraphTest, TheRoadSpeedTellsTheGear) {
  const struct {
    int fileType, units;
    double factor;
    const char* gear;
  } kRows[] = {{1, 1, 0, "4th"}, {1, 2, 0, "3rd"}, {5, 1, 0, "3rd"},  {8, 1, 0.27778, "3rd"},
               {8, 2, 0, "3rd"}, {8, 3, 0, "4th"}, {1, 3, 0.1, "4th"}};
  for (const auto& row : kRows) {
    // 22.5 of a speed unit at 1360 rpm: in 4th those are mph.
    Open("100 0 1350 4.5 22.0\n101 0.1 1360 4.5 22.5\n102 0.2 1370 4.5 0\n");
    made->log.gintCurrentFileType = row.fileType;
    settings.gintGearSpeedUnits = row.units;
    speedFactor = row.factor;
    window->cboGear.SetListIndex(5);
    window->txtPlotRangeFrom.Text = "99";
    window->txtPlotRangeFrom.Text = "100";
    EXPECT_EQ(window->cboGear.Text(), row.gear) << row.fileType << " " << row.units;
    window->cboGear.SetListIndex(5);
    window->txtPlotRangeFrom.Text = "101";
    EXPECT_EQ(window->cboGear.Text(), "6th") << "no speed, no proposal";
  }
  settings.gblnAutoGearSelection = false;
  window->txtPlotRangeFrom.Text = "100";
  EXPECT_EQ(window->cboGear.Text(), "6th");
}

TEST_F(PowerGraphTest, TheSpeedGraphGetsTheBenchmarkThatIsShown) {
  Open();
  LoadSaved();
  Draw("100", "200");
  window->mnuToolsSpeed.Do({"click", {}});
  window->cboBenchMarkAction.Do({"choose", {"Hide"}});
  window->mnuToolsSpeed.Do({"click", {}});
  ASSERT_EQ(speedGraphs.size(), 2u);
  EXPECT_EQ(speedGraphs[0].run.size(), 100u);
  EXPECT_EQ(speedGraphs[0].benchmark.size(), 2u);
  EXPECT_FALSE(speedGraphs[0].benchmarkImperial);
  EXPECT_TRUE(speedGraphs[1].benchmark.empty());
}

TEST_F(PowerGraphTest, PrintsWithItsDetails) {
  Open();
  Draw("100", "200");
  host.answers.push_back({Answer::Kind::Printer});
  window->mnuFilePrint.Do({"click", {}});
  ASSERT_EQ(host.pages.size(), 1u);
  window->mnuEditCopy.Do({"click", {}});
  EXPECT_EQ(host.copied.size(), 1u);
}

}  // namespace
}  // namespace tarnview
