#include "qt/chart/PicturePainter.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>

#include "qt/Text.h"
#include "qt/chart/ChartWidget.h"

namespace tarnview {
namespace {

/// What a pixel of a picture is on paper.
constexpr int kPixelsPerInch = 96;
constexpr int kLargestSide = 16384;
/// The disk does not tell the reason apart.
constexpr const char* kNotWritten =
    "The file cannot be written: its folder is missing or closed to writing, or the disk is full.";

struct Picture {
  Picture(const ChartDescription& description, int itsWidth, int itsHeight)
      : width(itsWidth), height(itsHeight) {
    chart.resize(width, height);
    chart.SetDescription(description);
  }

  ChartWidget chart;
  int width;
  int height;

  bool PaintOn(QPaintDevice& device, bool vectors) {
    QCPPainter painter;
    if (!painter.begin(&device)) return false;
    painter.setMode(QCPPainter::pmNoCaching);
    painter.setMode(QCPPainter::pmVectorized, vectors);
    chart.Paint(painter, width, height);
    return painter.end();
  }
};

bool DrawPng(Picture& picture, QIODevice& to) {
  QImage image(picture.width, picture.height, QImage::Format_RGB32);
  return picture.PaintOn(image, false) && image.save(&to, "PNG");
}

bool DrawSvgTo(Picture& picture, QIODevice& to) {
  QSvgGenerator svg;
  svg.setOutputDevice(&to);
  svg.setTitle("Tarnview");
  svg.setDescription(QString());
  svg.setResolution(kPixelsPerInch);
  svg.setSize(QSize(picture.width, picture.height));
  svg.setViewBox(QRect(0, 0, picture.width, picture.height));
  return picture.PaintOn(svg, true);
}

bool DrawPdf(Picture& picture, QIODevice& to) {
  QPdfWriter pdf(&to);
  pdf.setResolution(kPixelsPerInch);
  const QSizeF inches(static_cast<double>(picture.width) / kPixelsPerInch,
                      static_cast<double>(picture.height) / kPixelsPerInch);
  pdf.setPageSize(QPageSize(inches, QPageSize::Inch, QString(), QPageSize::ExactMatch));
  pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
  return picture.PaintOn(pdf, true);
}

struct Format {
  const char* ending;
  bool (*draw)(Picture&, QIODevice&);
};
constexpr Format kFormats[] = {{".png", DrawPng}, {".svg", DrawSvgTo}, {".pdf", DrawPdf}};

}  // namespace

bool DrawPicture(FileSystem& files, const ChartDescription& chart, const std::string& path,
                 int width, int height, std::string& error) {
  const QString name = PathToQt(path);
  const auto format =
      std::find_if(std::begin(kFormats), std::end(kFormats), [&](const Format& one) {
        return name.endsWith(QLatin1String(one.ending), Qt::CaseInsensitive);
      });
  if (format == std::end(kFormats)) {
    error = "A picture's name ends in .png, .svg or .pdf.";
    return false;
  }
  if (width < 1 || height < 1 || width > kLargestSide || height > kLargestSide) {
    error = "A picture is 1 to 16384 pixels wide and high.";
    return false;
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (Picture picture(chart, width, height); !format->draw(picture, buffer)) {
    error = "It could not be drawn.";
    return false;
  }
  if (files.Write(path, bytes.toStdString())) return true;
  error = kNotWritten;
  return false;
}

bool DrawPicture(const ChartDescription& chart, const std::string& path, int width, int height,
                 std::string& error) {
  RealFileSystem files;
  return DrawPicture(files, chart, path, width, height, error);
}

QImage DrawImage(const ChartDescription& chart, QSize size, double ratio) {
  QImage image(size * ratio, QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  Picture(chart, size.width(), size.height()).PaintOn(image, false);
  return image;
}

QByteArray DrawSvg(const ChartDescription& chart, QSize size) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  Picture picture(chart, size.width(), size.height());
  DrawSvgTo(picture, buffer);
  return bytes;
}

}  // namespace tarnview
