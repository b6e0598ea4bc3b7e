#include "power/PowerWindowsFixture.h"
#include "support/Table.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

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
    story.Fact("labels", [this] {
      std::string told;
      for (const ChartMark& mark : window->chPowerGraph.Labels())
        told += FixedText(mark.x, 0) + ": " + mark.text + "; ";
      return told;
    });
  }
};

TEST_F(PowerGraphTest, OpensWithTheMainWindowsRangeTheFirstCarAndTheSettingsAir) {
  settings.gintHumidityType = 1;
  settings.gintRelativeHumidity = 15;
  settings.gintDefaultAtmosphericPressure = 101;
  settings.gblnSAECorrection = true;
  Open();
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story, R"(
show txtPlotRangeFrom txtPlotRangeTo cboCarDefs cboGear txtWeight txtSmoothFactor txtCorrFactor lblRH chkSAE cboBenchMarkAction mnuBench mnuFileSave -> txtPlotRangeFrom=120, txtPlotRangeTo=180, cboCarDefs list=[New|Metric], cboCarDefs=New, cboGear list=[1st|2nd|3rd|4th|5th|6th], cboGear=4th, txtWeight=180, txtSmoothFactor=7, txtCorrFactor=0.982, lblRH='C, chkSAE=S&AE Correction, chkSAE checked, cboBenchMarkAction off, cboBenchMarkAction list=[Hide|Show|Average], cboBenchMarkAction=Hide, mnuBench off, mnuBench=&Benchmark, mnuFileSave off, mnuFileSave=&Save...
show updPlotRangeFrom updPlotRangeTo updWeight updSmoothFactor updAmbTemp updAtmos updRH -> updPlotRangeFrom min=0, updPlotRangeFrom max=3000000, updPlotRangeTo min=0, updPlotRangeTo max=3000000, updWeight min=0, updWeight max=9999, updSmoothFactor min=0, updSmoothFactor max=50, updAmbTemp min=-30, updAmbTemp max=60, updAtmos min=75, updAtmos max=115, updRH min=-30, updRH max=100
choose cboCarDefs Metric -> cboCarDefs=Metric, cboGear=2nd, lblWeight=Contents &Weight (kg), txtWeight=80, txtSmoothFactor=0
choose cboHumidityType "Rel. Humidity" -> txtCorrFactor=0.971, cboHumidityType=Rel. Humidity, lblRH=%
type txtRH 0; type txtAmbTemp 25; step updAtmos down; step updAtmos down -> txtCorrFactor=1.000, txtAmbTemp=25, txtAtmos=99, txtRH=0
)");
}

TEST_F(PowerGraphTest, BringsTheRangeIntoTheLogAndToItsLength) {
  Open();
  const auto drawn = [this](const TableRow& row) {
    Draw(row.Text(0), row.Text(1));
    std::string told = window->txtPlotRangeFrom.Text() + "-" + window->txtPlotRangeTo.Text();
    for (const Box& box : std::exchange(host.messages, {}))
      told += " [" + std::to_string(box.id) + "]";
    return told;
  };
  ExpectTable(drawn, R"(
100, 1200 -> 200-1200 [2] | 99, 150 -> 120-150 | 1301, 1250 -> 250-1250 [2] | 130, 0 -> 130-180 | 130, 1301 -> 130-180 | 130, 99 -> 130-180
100, 109 -> 100-109 [26] | 100, 110 -> 100-110 | 200, 150 -> 149-150 [26] | 100, 1100 -> 100-1100 | x, y -> 120-180
)");
}

TEST_F(PowerGraphTest, DrawsCurvesTellsOfThemAndSavesThemWithAComment) {
  Open();
  EXPECT_STORY(story, R"(
draw 100 200 -> curves=Your Power (85.1 hp @ 3990 rpm, Vmax 109 mph); Your Torque (114.2 lbft @ 3990 rpm), txtPlotRangeFrom=100, txtPlotRangeTo=200, fraPicture hidden, staPowerGraph[0]=Graph draw complete, mnuFileSave on, mnuFileSaveAs on, mnuFilePrint on, mnuFilePrintPreview on, mnuFileSavePicture on, mnuEditCopy on, mnuToolsSpeed on, mnuToolsCopy on, mnuRightClickCopy on, mnuRightClickPrint on
show "chPowerGraph x_axis" "chPowerGraph y_axis" "chPowerGraph marks" "chPowerGraph series[0] x" -> chPowerGraph x_axis min=1000, chPowerGraph x_axis max=8000, chPowerGraph x_axis format=#######0, chPowerGraph y_axis max=120, chPowerGraph y_axis divisions=6, chPowerGraph marks count=2, chPowerGraph marks[0] x=3990, chPowerGraph marks[0] y=85.1117902812993, chPowerGraph marks[0] text=85.1 hp, chPowerGraph marks[1] x=3990, chPowerGraph marks[1] y=114.172645389884, chPowerGraph marks[1] text=114.2 lbft, chPowerGraph series[0] x=100 from 2010 to 3990
hover chPowerGraph 2051 -> labels=2050: 38.9 hp; 2050: 97.2 lbft; 2050: 2050 rpm; , staPowerGraph[2]=2050 rpm: 38.9 hp, 97.2 lbft
hover chPowerGraph -> labels=, staPowerGraph[2]=
draw 100 105 -> [26 ok], txtPlotRangeTo=105
answer printer; click mnuFilePrint -> [printer "" ok], pages=1
click mnuEditCopy -> copied=1
answer file /b/mine; click mnuFileSaveAs -> [save "Save Power Graph As" of Power Graph files (*.pow) /b/mine], +frmPowerBenchComments
type txtComments "a\nb"; click cmdOK -> -frmPowerBenchComments, disk=write /b/mine.pow, staPowerGraph[0]=Saved, mnuSepRecent shown, mnuFileRecent(0) shown, mnuFileRecent(0)=&1 /b/mine.pow
click mnuFileSave -> +frmPowerBenchComments
click cmdCancel -> -frmPowerBenchComments
break /b/mine.pow; click mnuFileSave -> +frmPowerBenchComments
click cmdOK -> [19 ok], -frmPowerBenchComments
)");
  EXPECT_EQ(window->chPowerGraph.Data().x.title, "RPM");
  const PowerFile saved = ReadPowerFile(files.files["/b/mine.pow"]);
  EXPECT_EQ(saved.plotFrom + "-" + saved.plotTo + " " + saved.comments, "100-200 a b");
  EXPECT_EQ(saved.points.size(), 100u);
  EXPECT_EQ(saved.speed.size(), 99u);
}

TEST_F(PowerGraphTest, ACarWithoutARatioDrawsNothingAndSaysWhichField) {
  cars.Item(1).dbl4thGearRatio = 0;
  Open();
  EXPECT_STORY(story, R"(
draw 100 200 -> [63 ok], txtPlotRangeFrom=100, txtPlotRangeTo=200, staPowerGraph[3]=Car definition: check 4th Gear Ratio
)");
}

TEST_F(PowerGraphTest, ABenchmarkIsShownAveragedOrHidden) {
  Open();
  EXPECT_STORY(story, R"(
answer file /b/stock.pow; click mnuFileOpen -> [open "Open Power Graph" of Power Graph files (*.pow) /b/stock.pow], disk=read /b/stock.pow, lblBenchmark2=stock, cboBenchMarkAction on, cboBenchMarkAction=Show, staPowerGraph[0]=Loading complete, mnuSepRecent shown, mnuFileRecent(0) shown, mnuFileRecent(0)=&1 /b/stock.pow, mnuBench on, mnuBenchCalcDet on
draw 100 200 -> curves=Your Power (85.1 hp @ 3990 rpm, Vmax 109 mph); Your Torque (114.2 lbft @ 3990 rpm); Benchmark Power (199.9 hp @ 4000 rpm, Vmax 144.9 mph); Benchmark Torque (100.0 lbft @ 4000 rpm), txtPlotRangeFrom=100, txtPlotRangeTo=200, fraPicture hidden, staPowerGraph[0]=Graph draw complete, mnuFileSave on, mnuFileSaveAs on, mnuFilePrint on, mnuFilePrintPreview on, mnuFileSavePicture on, mnuEditCopy on, mnuToolsSpeed on, mnuToolsCopy on, mnuRightClickCopy on, mnuRightClickPrint on
click mnuToolsSpeed -> main=100 imperial speeds against 2 metric
choose cboBenchMarkAction Average -> cboBenchMarkAction=Average
click cmdDrawGraph -> curves=Your Power (142.3 hp @ 3990 rpm, Vmax 129.3 mph); Your Torque (107.0 lbft @ 3990 rpm); Benchmark Power (199.9 hp @ 4000 rpm, Vmax 144.9 mph); Benchmark Torque (100.0 lbft @ 4000 rpm)
choose cboBenchMarkAction Hide -> cboBenchMarkAction=Hide
click cmdDrawGraph -> curves=Your Power (85.1 hp @ 3990 rpm, Vmax 109 mph); Your Torque (114.2 lbft @ 3990 rpm)
click mnuToolsSpeed -> main=100 imperial speeds against 0 imperial
choose cboUnits Metric; choose cboBenchMarkAction Show; click cmdDrawGraph -> curves=Your Power (63.5 kW @ 3990 rpm, Vmax 175.4 kmh); Your Torque (154.9 Nm @ 3990 rpm); Benchmark Power (149.1 kW @ 4000 rpm, Vmax 233.2 kmh); Benchmark Torque (135.7 Nm @ 4000 rpm), cboUnits=Metric, cboBenchMarkAction=Show
# One that cannot be read takes the old one away.
answer file /b/none.pow; click mnuFileOpen -> [open "Open Power Graph" of Power Graph files (*.pow) /b/none.pow], [33 ok], [Can't do anything with that file I'm afraid. ok], disk=read /b/none.pow, lblBenchmark2=, cboBenchMarkAction off, cboBenchMarkAction=Hide, staPowerGraph[0]=Loading failed, mnuBench off, mnuBenchCalcDet off
)");
  settings.recentPowerGraphFiles.resize(12, "/b/old.pow");
  host.answers.push_back({Answer::Kind::File, "/b/stock.pow"});
  window->mnuFileOpen.Do({"click", {}});
  EXPECT_EQ(settings.recentPowerGraphFiles.size(), 9u);
}

TEST_F(PowerGraphTest, CopiesIntoTheLogWhatLiesWithinIt) {
  Open();
  EXPECT_STORY(story, R"(
click cmdFindRuns -> lvwRuns count=1, lvwRuns[1]=[101|1300|2020-26000|119.9], lvwRuns[1] unselected, staPowerGraph[0]=1 found
row lvwRuns 1 -> txtPlotRangeFrom=101, txtPlotRangeTo=1300, lvwRuns[1] selected
draw 1290 1300 -> curves=Your Power (5587.0 hp @ 25990 rpm, Vmax 439.6 mph); Your Torque (1132.3 lbft @ 25990 rpm), txtPlotRangeFrom=1290, fraPicture hidden, staPowerGraph[0]=Graph draw complete, mnuFileSave on, mnuFileSaveAs on, mnuFilePrint on, mnuFilePrintPreview on, mnuFileSavePicture on, mnuEditCopy on, mnuToolsSpeed on, mnuToolsCopy on, mnuRightClickCopy on, mnuRightClickPrint on
click mnuToolsCopy -> main=1290-1300 at 1295
# The sample in the middle is rounded half to even.
draw 1288 1299; click mnuToolsCopy -> curves=Your Power (5574.8 hp @ 25970 rpm, Vmax 439.3 mph); Your Torque (1130.7 lbft @ 25970 rpm), main=1288-1299 at 1294, txtPlotRangeFrom=1288, txtPlotRangeTo=1299
)");
  const OpenLog& log = made->log;
  EXPECT_EQ(log.glngDataLog(kPower, 1287 - 100), 0);
  EXPECT_GT(log.glngDataLog(kPower, 1291 - 100), 0);
  EXPECT_GT(log.glngDataLog(kTorque, 1200), 0);
  EXPECT_EQ(log.gcolDataItems->Item(24).GetFormattedData(log.glngDataLog(kSpeed, 1291 - 100)),
            "426.0");
  window->LogIsClosing();
  EXPECT_FALSE(window->mnuToolsCopy.Enabled());
  EXPECT_TRUE(window->mnuFilePrint.Enabled());
}

TEST_F(PowerGraphTest, TheRoadSpeedTellsTheGear) {
  // 22.5 of a speed unit at 1360 rpm: in 4th those are mph. Without a speed nothing is proposed;
  // another car has it worked out again.
  const auto gears = [this](const TableRow& row) {
    Open("100 0 1350 4.5 22.0\n101 0.1 1360 4.5 22.5\n102 0.2 1370 4.5 0\n");
    made->log.gintCurrentFileType = row.Int(0);
    settings.gintGearSpeedUnits = row.Int(1);
    speedFactor = row.Number(2);
    settings.gblnAutoGearSelection = row.Text(3) == "auto";
    std::string told;
    window->txtPlotRangeFrom.Text = "99";
    for (const char* from : {"100", "101"}) {
      window->cboGear.SetListIndex(5);
      window->txtPlotRangeFrom.Text = from;
      told += (told.empty() ? "" : " ") + window->cboGear.Text();
    }
    window->txtPlotRangeFrom.Text = "100";
    window->cboCarDefs.Do({"choose", {"New"}});
    told += " " + window->cboGear.Text();
    return told;
  };
  // The file type, the units of the setting, the factor of the main window.
  ExpectTable(gears, R"(
1, 1, 0, auto -> 4th 6th 4th | 1, 2, 0, auto -> 3rd 6th 3rd | 5, 1, 0, auto -> 3rd 6th 3rd | 8, 1, 0.27778, auto -> 3rd 6th 3rd | 8, 2, 0, auto -> 3rd 6th 3rd | 8, 3, 0, auto -> 4th 6th 4th | 1, 3, 0.1, auto -> 4th 6th 4th | 1, 1, 0, off -> 6th 6th 6th
)");
}

}  // namespace
}  // namespace tarnview
