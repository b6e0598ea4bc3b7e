#include "qt/host/PaperPage.h"

#include <qcustomplot.h>

#include <QPagedPaintDevice>
#include <QPalette>
#include <algorithm>

#include "qt/Text.h"
#include "qt/chart/ChartWidget.h"
#include "ui/Chart.h"

namespace tarnview {
namespace {

constexpr double kTwipsPerInch = 1440, kTwipsPerPoint = 20;
/// A chart's pixel on paper: 120 to the inch, which makes the texts of a desktop's chart about 8
/// points high.
constexpr double kTwipsPerPixel = kTwipsPerInch / 120;

/// Paper is light whatever the desktop is: what stands for the desktop's button face on it.
QPalette PaperPalette() { return QPalette(QColor(0xF0, 0xF0, 0xF0)); }

/// A twip is a pixel here, so that texts are measured in twips.
QFont FontOf(int points) {
  QFont font("Arial");
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(static_cast<int>(points * kTwipsPerPoint));
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

PaperPage::PaperPage(QCPPainter& painter, const QPagedPaintDevice& paper, SizeOfChart sizeOf)
    : painter_(painter), sizeOf_(std::move(sizeOf)) {
  const QSizeF points = paper.pageLayout().fullRectPoints().size();
  width_ = points.width() * kTwipsPerPoint;
  height_ = points.height() * kTwipsPerPoint;
  painter_.setMode(QCPPainter::pmNoCaching);
  painter_.setMode(QCPPainter::pmVectorized);
  painter_.scale(paper.logicalDpiX() / kTwipsPerInch, paper.logicalDpiY() / kTwipsPerInch);
}

double PaperPage::TextWidth(const std::string& text, int points) const {
  return QFontMetricsF(FontOf(points)).horizontalAdvance(ShownToQt(text));
}

double PaperPage::LineHeight(int points) const {
  return QFontMetricsF(FontOf(points)).lineSpacing();
}

double PaperPage::ShapeOf(const Chart& chart) const {
  const QSize size = sizeOf_(chart).expandedTo(QSize(1, 1));
  return static_cast<double>(size.height()) / size.width();
}

void PaperPage::DrawText(const std::string& text, int points, double left, double top) {
  const QFont font = FontOf(points);
  painter_.setFont(font);
  painter_.setPen(Qt::black);
  painter_.drawText(QPointF(left, top + QFontMetricsF(font).ascent()), ShownToQt(text));
}

void PaperPage::DrawPicture(const Chart& chart, const PageRect& place) {
  ChartWidget widget;
  widget.setPalette(PaperPalette());
  widget.SetDescription(chart.Data());
  painter_.save();
  painter_.translate(place.left, place.top);
  painter_.scale(kTwipsPerPixel, kTwipsPerPixel);
  widget.Paint(painter_, std::max(qRound(place.width / kTwipsPerPixel), 1),
               std::max(qRound(place.height / kTwipsPerPixel), 1));
  painter_.restore();
}

}  // namespace tarnview
