#include <gmock/gmock.h>

#include <cmath>

#include "qt/TestApplication.h"
#include "qt/Text.h"
#include "qt/chart/ChartColours.h"
#include "qt/chart/ClipLine.h"
#include "qt/chart/PicturePainter.h"
#include "support/MemoryFileSystem.h"

namespace tarnview {
namespace {

using testing::Each;
using testing::StartsWith;

ChartDescription TwoCurves(const ChartColours& colours, int points = 500) {
  ChartDescription chart;
  chart.x = {0, 100, 10, "#######0"};
  chart.y = {0, 100, 10, "#######0"};
  chart.colours = colours;
  std::get<Curves>(chart.kind).series = {{1, "RPM", {}, {}, {0x0000FF, 1, 30}},
                                         {2, "MAP", {}, {}, {0xFF0000, 3, 10}}};
  for (ChartSeries& series : std::get<Curves>(chart.kind).series)
    for (int i = 0; i < points; ++i) {
      series.x.push_back(100.0 * i / points);
      series.y.push_back(50 + 40 * std::sin(i * 0.02 + series.id));
    }
  return chart;
}

class PicturePainterTest : public testing::Test {
 protected:
  std::string In(const char* name) const { return PathFromQt(folder_.filePath(name)); }
  QByteArray Read(const char* name) const {
    QFile file(folder_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QApplication& application_ = TestApplication();
  QTemporaryDir folder_;
  std::string error_;
};

TEST_F(PicturePainterTest, APictureHoldsItsCurvesInTheirColoursOnEachScheme) {
  for (const ChartColours& colours :
       {ChartColours{true, 0, 0, 0}, ChartColours{false, 0, 0xFFFFFF, 0x808080},
        ChartColours{false, 0xFFFFFF, 0, 0}}) {
    ASSERT_TRUE(DrawPicture(TwoCurves(colours), In("a.png"), 700, 400, error_)) << error_;
    const QImage image(folder_.filePath("a.png"));
    ASSERT_EQ(image.size(), QSize(700, 400));
    int red = 0, blue = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        const QColor pixel = image.pixelColor(x, y);
        red += pixel.red() > pixel.blue() + 100;
        blue += pixel.blue() > pixel.red() + 100;
      }
    EXPECT_GT(red, 3 * 600) << "a solid line of 3 pixels";
    EXPECT_GT(blue, 300) << "a dashed line of 1 pixel";
    EXPECT_LT(blue, red);
    EXPECT_EQ(image.pixelColor(1, 1), ToPaint(colours, QApplication::palette()).backdrop);
  }
}

TEST_F(PicturePainterTest, VectorFilesHaveThePicturesSizeAndItsTexts) {
  ASSERT_TRUE(DrawPicture(TwoCurves({}), In("a.svg"), 960, 480, error_)) << error_;
  const QByteArray svg = Read("a.svg");
  EXPECT_TRUE(svg.contains("viewBox=\"0 0 960 480\""));
  EXPECT_TRUE(svg.contains(">RPM</text>"));
  EXPECT_TRUE(svg.contains("#ff0000"));
  ASSERT_TRUE(DrawPicture(TwoCurves({}), In("a.PDF"), 960, 480, error_)) << error_;
  const QByteArray pdf = Read("a.PDF");
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_TRUE(pdf.contains("MediaBox [0 0 720.000000 360.000000]"))
      << "960 by 480 pixels of 1/96 inch in points";
}

TEST_F(PicturePainterTest, ALegendTallerThanThePictureGetsMoreColumns) {
  ChartDescription chart = TwoCurves({false, 0xFFFFFF, 0, 0});
  auto& series = std::get<Curves>(chart.kind).series;
  series.resize(40, series[0]);
  ASSERT_TRUE(DrawPicture(chart, In("a.svg"), 900, 420, error_)) << error_;
  EXPECT_EQ(Read("a.svg").count(">RPM</text>"), 39);
}

TEST(ClipLineTest, KeepsWhatLiesWithin) {
  const QRectF box(0, 0, 10, 10);
  EXPECT_EQ(ClipLine({{1, 1}, {5, 5}, {9, 1}}, box),
            (std::vector<QPolygonF>{{{1, 1}, {5, 5}, {9, 1}}}));
  EXPECT_EQ(ClipLine({{5, 5}, {5, 20}, {8, 20}, {8, 5}}, box),
            (std::vector<QPolygonF>{{{5, 5}, {5, 10}}, {{8, 10}, {8, 5}}}))
      << "out over the edge and in again";
  EXPECT_EQ(ClipLine({{-5, 5}, {15, 5}}, box), (std::vector<QPolygonF>{{{0, 5}, {10, 5}}}));
  EXPECT_TRUE(ClipLine({{-5, 12}, {15, 12}}, box).empty());
  EXPECT_TRUE(ClipLine({{3, 3}}, box).empty());
}

TEST_F(PicturePainterTest, APictureIsWrittenAsEveryFileIs) {
  MemoryFileSystem disk;
  for (const std::string path : {"/a.png", "/b.svg", "/c.pdf", "/run \xE9.png"}) {
    EXPECT_TRUE(DrawPicture(disk, TwoCurves({}), path, 100, 100, error_)) << error_;
    disk.failWrites = true;
    EXPECT_FALSE(DrawPicture(disk, TwoCurves({}), path, 90, 90, error_)) << path;
    EXPECT_NE(error_.find("cannot be written"), std::string::npos);
    disk.failWrites = false;
  }
  EXPECT_THAT(disk.accesses, Each(StartsWith("write /"))) << "nothing goes past the disk";
  EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(disk.files["/a.png"])).size(),
            QSize(100, 100));
  EXPECT_TRUE(disk.files.contains("/run \xE9.png")) << "a name that is no UTF-8";
}

TEST(TextTest, APathOfAnyBytesComesBack) {
  for (const std::string path :
       {"/run.txt", "/\xC3\xA9\xF0\x9F\x98\x80.txt", "/\xE9 \xC3\xA9.txt", "\xED\xB2\x80", "\xFF"})
    EXPECT_EQ(PathFromQt(PathToQt(path)), path);
  EXPECT_EQ(PathFromQt(PathToQt("/\xE9/") + QString::fromUtf8("\xC3\xA9.png")),
            "/\xE9/\xC3\xA9.png");
}

TEST_F(PicturePainterTest, WhatCannotBeDrawnIsTold) {
  EXPECT_FALSE(DrawPicture(TwoCurves({}), In("a.gif"), 100, 100, error_));
  EXPECT_NE(error_.find(".png, .svg or .pdf"), std::string::npos);
  EXPECT_FALSE(DrawPicture(TwoCurves({}), In("none/a.png"), 100, 100, error_));
  EXPECT_FALSE(error_.empty());
  EXPECT_FALSE(DrawPicture(TwoCurves({}), In("a.png"), 0, 100, error_));
  EXPECT_TRUE(DrawPicture({}, In("a.png"), 1, 1, error_)) << "no curve and no room";
}

TEST(ChartColoursTest, TextStaysReadableOnADarkDesktop) {
  QPalette dark;
  dark.setColor(QPalette::Button, QColor(50, 50, 50));
  dark.setColor(QPalette::ButtonText, QColor(230, 230, 230));
  EXPECT_EQ(ToPaint({true, 0, 0x000000, 0x000000}, dark).text, QColor(230, 230, 230));
  QPalette light;
  light.setColor(QPalette::Button, QColor(239, 239, 239));
  EXPECT_EQ(ToPaint({true, 0, 0x000000, 0x000000}, light).text, QColor(0, 0, 0));
}

}  // namespace
}  // namespace tarnview
