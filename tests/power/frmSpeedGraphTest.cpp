#include "base/Numbers.h"
#include "power/SpeedChart.h"
#include "power/frmSpeedGraph.h"
#include "support/DeskTest.h"
#include "support/Table.h"
#include "support/WholeWindow.h"

namespace tarnview {
namespace {

class SpeedGraphTest : public DeskTest {
 protected:
  SpeedGraphTest() {
    input.file = "/logs/run.txt";
    input.imperial = true;
    // 50, 60 and a little over 80 mph
    input.run = {{0, 0}, {0.1, 22.352}, {1.1, 26.8224}, {2.1, 35.7633}};
    input.benchmark = {{0, 50}, {2, 60}, {4, 80}};
  }
  void Open() {
    window.emplace(host, frmSpeedGraph::Surroundings{settings, errors, messages}, input,
                   [](int) {});
    window->Show();
  }

  Settings settings;
  SpeedGraphInput input;
  std::optional<frmSpeedGraph> window;
};

TEST_F(SpeedGraphTest, ShowsSpeedsAboveZeroAndAsksHowLongFromOneToTheOther) {
  Open();
  ExpectWhole(*window, TARNVIEW_TESTS);
  EXPECT_STORY(story);
  const ChartDescription& chart = window->chSpeedGraph.Data();
  EXPECT_EQ(chart.y.title + ", " + chart.x.title, "Speed (MPH), Time (Seconds)");
}

TEST_F(SpeedGraphTest, WithoutABenchmarkItsFieldsAreHidden) {
  input.benchmark.clear();
  input.imperial = false;
  Open();
  EXPECT_STORY(story);
  std::string told;
  for (const auto& page : host.pages)
    for (const auto& text : page.texts) told += text.text + "|";
  EXPECT_EQ(told,
            "Tarnview Speed Graph|File : |/logs/run.txt|Tarnview Speed Graph|File : |/logs/run.txt|"
            "Acceleration : |90 - 100 kmh|You : |00.51|");
}

TEST_F(SpeedGraphTest, ASpeedWithoutEndIsNotShown) {
  input.run.clear();
  input.benchmark = {{0, 1e308}, {1, 20}};
  Open();
  EXPECT_STORY(story);
  EXPECT_EQ(window->chSpeedGraph.Data().y.title, "Speed (KPH)");
}

TEST(SpeedChart, AxesTellTheirStepsApart) {
  const auto axis = [](const TableRow& row) {
    std::vector<SpeedPoint> run;
    if (row.Number(0) > 0) run.push_back({row.Number(0), 20});
    const ChartAxis x = SpeedChart(run, nullptr, true).x;
    return NumberText(x.max) + "/" + std::to_string(x.divisions) + " " + x.format.substr(7);
  };
  ExpectTable(axis, R"(
0 -> 1/1 0 | 0.009 -> 0.009/9 0.000 | 0.11 -> 0.11/11 0.00 | 12 -> 12/12 0
)");
}

}  // namespace
}  // namespace tarnview
