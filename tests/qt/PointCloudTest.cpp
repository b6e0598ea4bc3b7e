#include <gmock/gmock.h>

#include <cmath>
#include <random>

#include "qt/Gestures.h"
#include "qt/TestApplication.h"
#include "qt/chart/ChartWidget.h"
#include "qt/chart/MarkSprites.h"
#include "qt/chart/PicturePainter.h"
#include "qt/chart/PointShades.h"
#include "support/MemoryFileSystem.h"

namespace tarnview {
namespace {

using testing::ElementsAre;

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
constexpr double kEndless = std::numeric_limits<double>::infinity();
const PaintedColours kOnWhite{Qt::white, Qt::black, Qt::lightGray};

/// Values are pixels.
PixelGrid Pixels(int width, int height) { return {{0, 1}, {0, 1}, QRect(0, 0, width, height)}; }
QPoint PixelOf(const PointCloud& cloud, std::size_t point) {
  return QPointF(cloud.x[point], cloud.y[point]).toPoint();
}

PointCloud Scattered(int points, double width, double height, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> even;
  PointCloud cloud;
  for (int i = 0; i < points; ++i) {
    cloud.x.push_back(even(random) * width);
    cloud.y.push_back(even(random) * height);
  }
  return cloud;
}

ChartDescription ChartOf(PointCloud cloud, double width, double height) {
  ChartDescription chart;
  chart.x = {0, width, 10, "#######0", "RPM"};
  chart.y = {0, height, 10, "#######0", "Air/Fuel Ratio"};
  chart.kind = std::move(cloud);
  return chart;
}

TEST(PointGridTest, FindsWhatLooksAtEveryPointWouldFind) {
  for (const int points : {1, 40, 3000}) {
    const PixelGrid grid = Pixels(200, 90);
    const PointCloud cloud = Scattered(points, 230, 100, static_cast<unsigned>(points));
    const PointGrid picking(PlacePoints(cloud, grid), grid.inside);
    for (int y = -12; y < 110; y += 3)
      for (int x = -12; x < 250; x += 3) {
        std::optional<int> nearest;
        int best = 8 * 8;
        for (std::size_t i = 0; i < cloud.x.size(); ++i) {
          const QPoint away = PixelOf(cloud, i) - QPoint(x, y);
          const int square = QPoint::dotProduct(away, away);
          if (!grid.inside.contains(PixelOf(cloud, i)) || square > best) continue;
          best = square;
          nearest = static_cast<int>(i);
        }
        ASSERT_EQ(picking.Nearest(x, y), nearest) << points << " points, at " << x << ", " << y;
      }
    EXPECT_FALSE(picking.Nearest(kNothing, 1));
  }
}

TEST(PlacedPointsTest, EachPixelKeepsItsLastPointAndNoPointIsLostAlone) {
  PointCloud cloud;
  cloud.x = {5, 5.2, 30, kNothing, 5, kEndless, 5, -0.5, 39.4, -1, 1e300};
  cloud.y = {5, 4.9, 10, 5, kNothing, 5, -kEndless, 0, 19, 5, -1e300};
  std::vector<int> kept;
  for (const PlacedPoint& one : PlacePoints(cloud, Pixels(40, 20))) kept.push_back(one.point);
  EXPECT_EQ(kept, (std::vector<int>{1, 2, 7, 8}));
  EXPECT_TRUE(PlacePoints(cloud, Pixels(0, 0)).empty());

  // So large a picture that pixels share cells.
  PointCloud wide;
  for (int i = 0; i < 10000; ++i) {
    wide.x.push_back(i % 100 * 160);
    wide.y.push_back(i / 100 * 160);
  }
  EXPECT_EQ(PlacePoints(wide, Pixels(16000, 16000)).size(), 10000u);
}

TEST(PlacedPointsTest, CountsWhatFallsAround) {
  const PointCloud cloud = Scattered(2000, 60, 40, 5);
  const PixelGrid grid = Pixels(60, 40);
  const std::vector<PlacedPoint> placed = PlacePoints(cloud, grid);
  const std::vector<int> counts = CountAround(cloud, grid, placed, 3);
  for (std::size_t i = 0; i < placed.size(); i += 7) {
    const QRect around = grid.inside & QRect(placed[i].x - 3, placed[i].y - 3, 7, 7);
    int near = 0;
    for (std::size_t j = 0; j < cloud.x.size(); ++j) near += around.contains(PixelOf(cloud, j));
    EXPECT_EQ(counts[i], near);
  }
}

TEST(MarkersTest, EveryShapeMarksItsPlaceAloneAndLooksLikeNoOther) {
  std::vector<QImage> atSix;
  for (int shape = 0; shape < 10; ++shape)
    for (int size = 1; size <= 10; ++size) {
      const Marker marker(static_cast<PointShape>(shape), size);
      QImage image(41, 41, QImage::Format_ARGB32_Premultiplied);
      image.fill(0);
      MarkSprites(marker, 1, {Qt::blue}).Stamp({{20, 20}}, image);
      EXPECT_GT(image.pixelColor(20, 20).alpha(), 200) << shape << " at size " << size;
      int outside = 0;
      for (int y = 0; y < 41; ++y)
        for (int x = 0; x < 41; ++x)
          outside += image.pixelColor(x, y).alpha() > 0 &&
                     std::hypot(x - 20, y - 20) > marker.Diameter() / 2 + 0.8;
      EXPECT_EQ(outside, 0) << shape << " at size " << size;
      if (size != 6) continue;
      EXPECT_EQ(std::count(atSix.begin(), atSix.end(), image), 0) << shape;
      atSix.push_back(image);
    }
}

TEST(PointShadesTest, TintRunsFromEndToEndAndDensityDarkens) {
  PointCloud cloud;
  cloud.x = {1, 20, 40, 60, 80, 80, 80.1};
  cloud.y = {1, 1, 1, 1, 1, 1, 1};
  cloud.colour = 0xFF8000;
  const PixelGrid grid = Pixels(100, 3);
  cloud.density = true;
  std::vector<PlacedPoint> placed = PlacePoints(cloud, grid);
  std::vector<QColor> shades = Shade(placed, cloud, grid, 2, kOnWhite);
  EXPECT_EQ(placed.back().point, 6) << "the densest lies on top";
  EXPECT_EQ(placed.back().shade, static_cast<int>(shades.size()) - 1);
  EXPECT_EQ(placed.front().shade, 0);
  const auto darker = [](QColor a, QColor b) { return qGray(a.rgb()) < qGray(b.rgb()); };
  EXPECT_TRUE(std::is_sorted(shades.rbegin(), shades.rend(), darker));

  cloud.tint = {-5, 0, 50, kNothing, 100, 100, 900};
  cloud.tintAxis = {0, 100, 10, "0"};
  placed = PlacePoints(cloud, grid);
  shades = Shade(placed, cloud, grid, 2, kOnWhite);
  std::map<int, QColor> colours;  // by the point
  for (const PlacedPoint& one : placed)
    colours[one.point] = shades.at(static_cast<std::size_t>(one.shade));
  EXPECT_EQ(colours.at(0), HeatColour(0));
  EXPECT_EQ(colours.at(1), HeatColour(0));
  EXPECT_EQ(colours.at(6), HeatColour(1));
  EXPECT_EQ(colours.at(3).saturation(), 0) << "no value, no colour";
}

TEST(PointCloudTest, AClickSelectsThePointUnderItAndFarFromAllNone) {
  TestApplication();
  PointCloud cloud;
  cloud.x = {10, kNothing, 50, 50, 0, 100};
  cloud.y = {10, 20, 50, 50, 100, 0};
  ChartWidget widget;
  widget.resize(600, 400);
  widget.SetDescription(ChartOf(cloud, 100, 100));
  std::vector<std::string> clicks;
  QObject::connect(&widget, &ChartWidget::PointClicked, Telling(clicks, "point"));
  const auto click = [&](double x, double y, double right) {
    widget.ClickAt(QPointF(widget.xAxis->coordToPixel(x) + right, widget.yAxis->coordToPixel(y)));
  };
  click(10, 10, 5);
  click(50, 50, -5);
  click(50, 50, 12);
  click(0, 100, 1);
  click(100, 0, -1);
  EXPECT_THAT(clicks, ElementsAre("point 0 1", "point 0 4", "point 0 5", "point 0 6"));
  widget.resize(900, 700);
  Settle();
  click(10, 10, 5);
  EXPECT_EQ(clicks.back(), "point 0 1") << "after a change of size";
  for (const int point : {1, 2, 4, 7, 0}) widget.Select(0, point);
}

TEST(PointCloudTest, APictureHasMarksTitlesAndTheBarOfColours) {
  TestApplication();
  PointCloud cloud = Scattered(200, 100, 100, 1);
  cloud.tint.assign(200, 5);
  cloud.tintAxis = {0, 10, 10, "#######0", "Boost"};
  const QByteArray svg = DrawSvg(ChartOf(cloud, 100, 100), {1400, 800});
  for (const char* text : {">RPM</text>", ">Air/Fuel Ratio</text>", ">Boost</text>"})
    EXPECT_TRUE(svg.contains(text));
  EXPECT_TRUE(svg.contains(HeatColour(0.5).name().toUtf8()) ||
              svg.contains(HeatColour(32 / 63.0).name().toUtf8()));

  // From a bar to none and back, as a window does.
  ChartWidget widget;
  widget.resize(500, 300);
  for (const bool tinted : {true, false, true}) {
    cloud.tint.resize(tinted ? 200 : 0, 5);
    widget.SetDescription(ChartOf(cloud, 100, 100));
    EXPECT_EQ(widget.plotLayout()->columnCount(), tinted ? 3 : 2);
  }
  widget.SetDescription({});
}

TEST(PointCloudTest, VectorFilesOfManyPointsStaySmall) {
  TestApplication();
  PointCloud cloud = Scattered(300000, 100, 100, 2);
  cloud.tint = cloud.x;
  cloud.tintAxis = {0, 100, 10, "0"};
  const ChartDescription chart = ChartOf(std::move(cloud), 100, 100);
  MemoryFileSystem disk;
  std::string error;
  for (const char* path : {"/a.svg", "/a.pdf"}) {
    EXPECT_TRUE(DrawPicture(disk, chart, path, 1400, 800, error)) << error;
    EXPECT_LT(disk.files[path].size(), 6'000'000u);
  }
}

}  // namespace
}  // namespace tarnview
