#include <gtest/gtest.h>

#include "qt/TestApplication.h"
#include "qt/chart/ChartText.h"
#include "qt/chart/ChartWidget.h"

namespace tarnview {
namespace {

TEST(ChartTextTest, AChartSaysWhatItShows) {
  TestApplication();
  ChartDescription chart;
  chart.x = {0, 120, 10, "#######0", "RPM"};
  chart.y = {-1, 2.5, 10, "#######0.0", "Boost"};
  EXPECT_EQ(ChartText(chart), "Nothing is drawn.");
  chart.kind = Curves{{{3, "Power", {0, 1}, {0, 1}, {}}, {37, "Boost \xB5", {0, 1}, {0, 1}, {}}}};
  chart.marks = {{2000, 90, "90 hp"}, {1800, 80, "80 \xB5"}};
  EXPECT_EQ(ChartText(chart),
            QString::fromUtf8("Curves of Power, Boost \xC2\xB5, over RPM from 0 to "
                              "120; marked: 90 hp, 80 \xC2\xB5."));
  chart.marks.clear();
  chart.x.title.clear();
  EXPECT_EQ(ChartText(chart),
            QString::fromUtf8("Curves of Power, Boost \xC2\xB5, over seconds from 0 to 120."));
  chart.x.title = "RPM";
  PointCloud cloud;
  cloud.x = cloud.y = {1, 2, 3};
  chart.kind = cloud;
  EXPECT_EQ(ChartText(chart), "3 points: Boost from -1.0 to 2.5, over RPM from 0 to 120.");
  cloud.tint = {1, 2, 3};
  cloud.tintAxis = {0, 5, 5, "#######0", "Knock"};
  chart.kind = cloud;
  ChartWidget widget;
  widget.SetDescription(chart);
  EXPECT_EQ(
      widget.accessibleDescription(),
      "3 points: Boost from -1.0 to 2.5, over RPM from 0 to 120, coloured by Knock from 0 to 5.");
}

}  // namespace
}  // namespace tarnview
