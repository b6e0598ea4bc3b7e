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
using testing::HasSubstr;
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
  QByteArray File(const ChartDescription& chart, const std::string& path, int width, int height) {
    EXPECT_TRUE(DrawPicture(disk_, chart, path, width, height, error_)) << error_;
    return QByteArray::fromStdString(disk_.files[path]);
  }

  QApplication& application_ = TestApplication();
  MemoryFileSystem disk_;
  std::string error_;
};

TEST_F(PicturePainterTest, APictureHoldsItsCurvesInTheirColoursOnEachScheme) {
  for (const ChartColours& colours :
       {ChartColours{true, 0, 0, 0}, ChartColours{false, 0, 0xFFFFFF, 0x808080},
        ChartColours{false, 0xFFFFFF, 0, 0}}) {
    const QImage image = QImage::fromData(File(TwoCurves(colours), "/a.png", 700, 400));
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
  const QByteArray svg = File(TwoCurves({}), "/a.svg", 960, 480);
  for (const char* part : {"viewBox=\"0 0 960 480\"", ">RPM</text>", "#ff0000"})
    EXPECT_TRUE(svg.contains(part)) << part;
  const QByteArray pdf = File(TwoCurves({}), "/a.PDF", 960, 480);
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_TRUE(pdf.contains("MediaBox [0 0 720.000000 360.000000]"))
      << "960 by 480 pixels of 1/96 inch in points";
}

TEST_F(PicturePainterTest, ALegendTallerThanThePictureGetsMoreColumns) {
  ChartDescription chart = TwoCurves({false, 0xFFFFFF, 0, 0});
  auto& series = std::get<Curves>(chart.kind).series;
  series.resize(40, series[0]);
  EXPECT_EQ(DrawSvg(chart, {900, 420}).count(">RPM</text>"), 39);
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
  for (const char* path : {"/a.png", "/b.svg", "/c.pdf", "/a name that is no UTF-8 \xE9.png"}) {
    disk_.failWrites = false;
    const std::string whole = File(TwoCurves({}), path, 100, 100).toStdString();
    disk_.failWrites = true;
    EXPECT_FALSE(DrawPicture(disk_, TwoCurves({}), path, 90, 90, error_)) << path;
    EXPECT_THAT(error_, HasSubstr("cannot be written"));
    EXPECT_EQ(disk_.files[path], whole);
  }
  EXPECT_THAT(disk_.accesses, Each(StartsWith("write /"))) << "nothing goes past the disk";
}

TEST(TextTest, APathOfAnyBytesComesBack) {
  for (const std::string path :
       {"/run.txt", "/\xC3\xA9\xF0\x9F\x98\x80.txt", "/\xE9 \xC3\xA9.txt", "\xED\xB2\x80", "\xFF"})
    EXPECT_EQ(PathFromQt(PathToQt(path)), path);
  EXPECT_EQ(PathFromQt(PathToQt("/\xE9/") + QString::fromUtf8("\xC3\xA9.png")),
            "/\xE9/\xC3\xA9.png");
}

TEST_F(PicturePainterTest, WhatCannotBeDrawnIsTold) {
  const QTemporaryDir folder;
  const std::string path = PathFromQt(folder.path());
  EXPECT_FALSE(DrawPicture(TwoCurves({}), path + "/a.gif", 100, 100, error_));
  EXPECT_THAT(error_, HasSubstr(".png, .svg or .pdf"));
  EXPECT_FALSE(DrawPicture(TwoCurves({}), path + "/none/a.png", 100, 100, error_));
  EXPECT_THAT(error_, HasSubstr("cannot be written"));
  EXPECT_FALSE(DrawPicture(TwoCurves({}), path + "/a.png", 0, 100, error_));
  EXPECT_TRUE(DrawPicture({}, path + "/a.png", 1, 1, error_)) << "no curve and no room";
  EXPECT_EQ(QImage(folder.filePath("a.png")).size(), QSize(1, 1));
}

TEST(ChartColoursTest, TextStaysReadableOnADarkDesktop) {
  const auto black = [](int button) {
    QPalette desktop;
    desktop.setColor(QPalette::Button, QColor(button, button, button));
    desktop.setColor(QPalette::ButtonText, QColor(230, 230, 230));
    return ToPaint({true, 0, 0x000000, 0x000000}, desktop).text;
  };
  EXPECT_EQ(black(50), QColor(230, 230, 230));
  EXPECT_EQ(black(239), QColor(0, 0, 0));
}

}  // namespace
}  // namespace tarnview
