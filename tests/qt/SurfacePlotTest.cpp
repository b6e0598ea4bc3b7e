#include <gmock/gmock.h>

#include "qt/Gestures.h"
#include "qt/TestApplication.h"
#include "qt/chart/ChartWidget.h"
#include "qt/chart/PicturePainter.h"
#include "qt/chart/SurfaceGestures.h"

namespace tarnview {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ChartDescription Slope() {
  Surface surface;
  surface.title = "Fuel Zone Graph";
  surface.rows = {"0kPa 100", "40kPa 200", "80kPa 300"};
  surface.columns = {"00", "05", "10", "15"};
  surface.values = {0, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 100};
  surface.height = {0, 100, 5, "##0", "Fuel"};
  surface.view = {30, 50, 1};
  ChartDescription chart;
  chart.kind = std::move(surface);
  return chart;
}

/// How many colours of the heat scale, more or less, a picture has: grey is none.
int Coloured(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y).hsvSaturation() > 60;
  return count;
}

class SurfacePlotTest : public testing::Test {
 protected:
  SurfacePlotTest() {
    chart.resize(600, 400);
    chart.SetDescription(Slope());
    chart.show();
    Settle();
    const auto tell = [this](const char* what) { return Telling(told, what); };
    QObject::connect(&gestures, &SurfaceGestures::Turned, tell("turn"));
    QObject::connect(&gestures, &SurfaceGestures::Zoomed, tell("zoom"));
    QObject::connect(&gestures, &SurfaceGestures::DoubleClicked, tell("double"));
    QObject::connect(&chart, &ChartWidget::PointClicked, tell("click"));
    QObject::connect(&chart, &ChartWidget::RightClicked, tell("menu"));
  }
  void MoveTo(QPoint at) { MoveMouse(chart, at, Qt::LeftButton); }
  /// Of a cell, on the screen.
  QPoint Place(int row, int column) const {
    const auto& surface = std::get<Surface>(description.kind);
    const QFontMetricsF metrics(chart.xAxis->tickLabelFont());
    const SceneRoom room{
        600, 400, metrics.height() * 2.9, metrics.height(),
        [&](const std::string& text) { return metrics.horizontalAdvance(text.c_str()); }};
    const auto mark = MarkOf(surface, room, row, column);
    return {static_cast<int>(std::lround(mark->at.x)), static_cast<int>(std::lround(mark->at.y))};
  }

  QApplication& application = TestApplication();
  std::vector<std::string> told;
  ChartDescription description = Slope();
  ChartWidget chart;
  SurfaceGestures& gestures = *new SurfaceGestures(chart);
};

TEST_F(SurfacePlotTest, AHandTurnsZoomsAndPicks) {
  QTest::mousePress(&chart, Qt::LeftButton, {}, {300, 200});
  MoveTo({302, 200});
  Settle();
  EXPECT_THAT(told, IsEmpty()) << "a hand that clicks moves a little";
  MoveTo({320, 200});
  MoveTo({360, 180});
  Settle();
  QTest::mouseRelease(&chart, Qt::LeftButton, {}, {360, 180});
  EXPECT_THAT(told, ElementsAre("turn 18 6")) << "taken together";
  told.clear();
  QTest::mouseClick(&chart, Qt::LeftButton, {}, Place(2, 3));
  QTest::mouseClick(&chart, Qt::LeftButton, {}, {3, 3});
  QTest::mouseClick(&chart, Qt::RightButton, {}, {300, 200});
  QTest::mouseDClick(&chart, Qt::LeftButton, {}, {3, 3});
  EXPECT_THAT(told, ElementsAre("click 1 3", "menu", "double"));
  told.clear();
  for (int notches : {1, -3}) TurnWheel(chart, {300, 200}, notches * 120);
  Settle();
  EXPECT_THAT(told, ElementsAre("zoom -2"));
}

TEST_F(SurfacePlotTest, TheScreenFilesAndACurveAfterwardsAreDrawn) {
  const QImage shown = chart.grab().toImage();
  EXPECT_GT(Coloured(shown), 600 * 400 / 10);
  const QImage file = DrawImage(description, {600, 400}, 1);
  EXPECT_NEAR(Coloured(file), Coloured(shown), 300);
  chart.Select(1, 3);
  Settle();
  const QRect around(Place(2, 3) - QPoint(8, 8), QSize(17, 17));
  EXPECT_NE(chart.grab().toImage().copy(around), shown.copy(around));
  EXPECT_EQ(chart.grab().toImage().copy(0, 0, 600, 40), shown.copy(0, 0, 600, 40));
  const QByteArray svg = DrawSvg(description, {600, 400});
  for (const char* text : {"Fuel Zone Graph", "40kPa 200", ">15<"})
    EXPECT_TRUE(svg.contains(text)) << text;
  ChartDescription curve;
  curve.kind = Curves{{{1, "A", {0, 1}, {0, 1}, {0xFF0000, 1, 30}}}};
  chart.SetDescription(curve);
  Settle();
  EXPECT_FALSE(chart.ShowsSurface());
  ChartWidget fresh;
  fresh.resize(600, 400);
  fresh.SetDescription(curve);
  fresh.show();
  Settle();
  EXPECT_EQ(chart.grab().toImage(), fresh.grab().toImage())
      << "a curve after a surface is as any curve";
}

}  // namespace
}  // namespace tarnview
