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
  EXPECT_STORY(story);
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
  EXPECT_STORY(story);
  EXPECT_EQ(window->chPowerGraph.Data().x.title, "RPM");
  const PowerFile saved = ReadPowerFile(files.files["/b/mine.pow"]);
  EXPECT_EQ(saved.plotFrom + "-" + saved.plotTo + " " + saved.comments, "100-200 a b");
  EXPECT_EQ(saved.points.size(), 100u);
  EXPECT_EQ(saved.speed.size(), 99u);
}

TEST_F(PowerGraphTest, ACarWithoutARatioDrawsNothingAndSaysWhichField) {
  cars.Item(1).dbl4thGearRatio = 0;
  Open();
  EXPECT_STORY(story);
}

TEST_F(PowerGraphTest, ABenchmarkIsShownAveragedOrHidden) {
  Open();
  EXPECT_STORY(story);
  settings.recentPowerGraphFiles.resize(12, "/b/old.pow");
  host.answers.push_back({Answer::Kind::File, "/b/stock.pow"});
  window->mnuFileOpen.Do({"click", {}});
  EXPECT_EQ(settings.recentPowerGraphFiles.size(), 9u);
}

TEST_F(PowerGraphTest, CopiesIntoTheLogWhatLiesWithinIt) {
  Open();
  EXPECT_STORY(story);
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
