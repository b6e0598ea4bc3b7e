#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "power/SpeedChart.h"
#include "power/frmSpeedGraph.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "ui/RecordingHost.h"

namespace tarnview {
namespace {

class SpeedGraphTest : public ::testing::Test {
 protected:
  void Open(bool withBenchmark, bool imperial = true) {
    SpeedGraphInput input;
    input.file = "/logs/run.txt";
    input.imperial = imperial;
    input.run = {
        {0, 0}, {0.1, 22.352}, {1.1, 26.8224}, {2.1, 35.7633}};  // 50, 60 and a little over 80 mph
    if (withBenchmark) input.benchmark = {{0, 50}, {2, 60}, {4, 80}};
    window.emplace(host, frmSpeedGraph::Surroundings{settings, errors, messages}, input,
                   [](int) {});
    window->Show();
  }
  std::string Query(const std::string& from, const std::string& to) {
    window->txtSpeedFrom.Do({"type", {from}});
    window->txtSpeedTo.Do({"type", {to}});
    window->cmdCalc.Do({"click", {}});
    return window->txtSpeedFrom.Text() + "-" + window->txtSpeedTo.Text() + ": " +
           window->txtResYou.Text() + " " + window->txtResBench.Text();
  }
  std::string Curve(std::size_t place) const {
    const ChartSeries& series = window->chSpeedGraph.Data().Series()[place];
    std::string text = series.name;
    for (std::size_t i = 0; i < series.x.size(); ++i)
      text += " " + NumberText(series.x[i]) + ":" + FixedText(series.y[i], 1);
    return text;
  }

  RecordingHost host;
  MemoryFileSystem files;
  FixedClock clock;
  ErrorLog errors{files, clock, ""};
  Messages messages{host, [](int) { return ""; }};
  Settings settings;
  std::optional<frmSpeedGraph> window;
};

TEST_F(SpeedGraphTest, ShowsSpeedsAboveZeroInTheUnitsOfItsGraph) {
  Open(true);
  EXPECT_EQ(window->Caption(), "Tarnview Speed Graph - run.txt");
  EXPECT_EQ(Curve(0), "You 0.1:50.0 1.1:60.0 2.1:80.0");
  EXPECT_EQ(Curve(1), "Benchmark 0:50.0 2:60.0 4:80.0");
  const ChartDescription& chart = window->chSpeedGraph.Data();
  EXPECT_EQ(chart.y.title + ", " + chart.x.title, "Speed (MPH), Time (Seconds)");
  EXPECT_EQ(chart.y.max, 90);
  EXPECT_EQ(chart.y.divisions, 9);
  EXPECT_EQ(chart.x.max, 4);
}

TEST_F(SpeedGraphTest, AsksHowLongFromOneSpeedToTheOther) {
  Open(true);
  EXPECT_EQ(Query("50", "80"), "50-80: 02.00 04.00");
  EXPECT_EQ(Query("60", "30"), "60-60: 00.00 00.00");
  EXPECT_EQ(Query("55", "70"), "55-70: 01.00 02.00");
  EXPECT_EQ(Query("40", "70"), "40-70: N/A N/A");
  EXPECT_EQ(Query("60", "90"), "60-90: N/A N/A");
}

TEST_F(SpeedGraphTest, OtherUnitsConvertTheQueryAndTheCurves) {
  Open(true);
  Query("60", "70");
  window->optSpeedUnits(1).Do({"click", {}});
  EXPECT_EQ(window->txtSpeedFrom.Text() + "-" + window->txtSpeedTo.Text(), "97-113");
  EXPECT_EQ(window->txtResYou.Text(), "00.50");
  EXPECT_EQ(Curve(0), "You 0.1:80.5 1.1:96.6 2.1:128.7");
  EXPECT_EQ(Curve(1), "Benchmark 0:80.5 2:96.6 4:128.7");
  EXPECT_EQ(window->chSpeedGraph.Data().y.title, "Speed (KPH)");
  window->optSpeedUnits(0).Do({"click", {}});
  EXPECT_EQ(window->txtSpeedFrom.Text() + "-" + window->txtSpeedTo.Text(), "60-70");
}

TEST_F(SpeedGraphTest, TheOffsetMovesTheBenchmarkAndLeavesTheResults) {
  Open(true);
  Query("50", "80");
  window->txtOffset.Do({"type", {"-0.5"}});
  EXPECT_EQ(Curve(1), "Benchmark -0.5:50.0 1.5:60.0 3.5:80.0");
  const ChartAxis& x = window->chSpeedGraph.Data().x;
  EXPECT_EQ(std::tuple(x.min, x.max, x.divisions, x.format),
            std::tuple(-0.5, 3.5, 8, std::string("#######0.0")));
  EXPECT_EQ(window->txtResBench.Text(), "04.00");
  window->updOffset.Do({"step", {"up"}});
  EXPECT_EQ(window->txtOffset.Text(), "-0.4");
  window->updSpeedFrom.Do({"step", {"down"}});
  EXPECT_EQ(window->txtSpeedFrom.Text(), "49");
}

TEST(SpeedChart, AxesTellTheirStepsApart) {
  const auto axis = [](const std::vector<SpeedPoint>& run) {
    const ChartAxis x = SpeedChart(run, nullptr, true).x;
    return NumberText(x.max) + "/" + std::to_string(x.divisions) + " " + x.format.substr(7);
  };
  EXPECT_EQ(axis({}), "1/1 0");
  EXPECT_EQ(axis({{0.009, 20}}), "0.009/9 0.000");
  EXPECT_EQ(axis({{0.11, 20}}), "0.11/11 0.00");
  EXPECT_EQ(axis({{12, 20}}), "12/12 0");
}

TEST_F(SpeedGraphTest, WithoutABenchmarkItsFieldsAreHidden) {
  Open(false, false);
  for (const Control* control :
       std::initializer_list<Control*>{&window->lblOffset, &window->txtOffset, &window->updOffset,
                                       &window->lblResBench, &window->txtResBench})
    EXPECT_FALSE(control->Visible()) << control->name;
  EXPECT_EQ(window->chSpeedGraph.Data().Series().size(), 1u);
  host.answers = {{Answer::Kind::Printer}, {Answer::Kind::Printer}};
  window->mnuFilePrint.Do({"click", {}});
  EXPECT_EQ(Query("90", "100"), "90-100: 00.51 ");
  window->mnuFilePrint.Do({"click", {}});
  std::string told;
  for (const auto& page : host.pages)
    for (const auto& text : page.texts) told += text.text + "|";
  EXPECT_EQ(told,
            "Tarnview Speed Graph|File : |/logs/run.txt|Tarnview Speed Graph|File : |/logs/run.txt|"
            "Acceleration : |90 - 100 kmh|You : |00.51|");
}

TEST_F(SpeedGraphTest, ASpeedWithoutEndIsNotShown) {
  SpeedGraphInput input;
  input.benchmark = {{0, 1e308}, {1, 20}};
  window.emplace(host, frmSpeedGraph::Surroundings{settings, errors, messages}, input, [](int) {});
  window->Show();
  window->optSpeedUnits(1).Do({"click", {}});
  EXPECT_EQ(Curve(1), "Benchmark 1:32.2");
  EXPECT_EQ(window->chSpeedGraph.Data().y.max, 35);
}

}  // namespace
}  // namespace tarnview
