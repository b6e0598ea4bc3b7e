#include "qt/chart/ChartWidget.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/Fonts.h"
#include "qt/Text.h"
#include "qt/chart/AxisNumbers.h"
#include "qt/chart/AxisRange.h"
#include "qt/chart/ChartColours.h"
#include "qt/chart/ChartText.h"
#include "qt/chart/LegendText.h"
#include "qt/chart/LinePen.h"
#include "qt/chart/NearestPoint.h"

namespace tarnview {
ChartWidget::ChartWidget(QWidget* parent) : QCustomPlot(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAntialiasedElements(QCP::aePlottables | QCP::aeLegendItems);
  for (QCPAxis* axis : {xAxis, yAxis}) {
    axis->setTicker(QSharedPointer<QCPAxisTickerText>::create());
    axis->setSubTicks(false);
    axis->setTickLength(0, 4);
    axis->setSubTickLength(0, 2);
    axis->grid()->setZeroLinePen(Qt::NoPen);
  }
  MakeLegendColumn();
  MakeMark();
  ApplyFonts();
  SetDescription({});
  connect(this, &QCustomPlot::afterReplot, this, [this] { drawn_ = true; });
}

void ChartWidget::MakeLegendColumn() {
  legendColumn_ = new QCPLayoutGrid;
  plotLayout()->addElement(0, 1, legendColumn_);
  plotLayout()->setColumnStretchFactor(1, 0.001);
  // Room above and below holds the legend in the middle.
  legendColumn_->addElement(0, 0, new QCPLayoutElement);
  legendColumn_->addElement(1, 0, legend);
  legendColumn_->addElement(2, 0, new QCPLayoutElement);
  legendColumn_->setRowStretchFactor(1, 0.001);
  legendColumn_->setRowSpacing(0);
  legend->setBorderPen(Qt::NoPen);
  legend->setBrush(Qt::NoBrush);
  legend->setFillOrder(QCPLayoutGrid::foRowsFirst);
  legend->setLayer("legend");
}

void ChartWidget::MakeMark() {
  line_ = new QCPItemStraightLine(this);
  across_ = new QCPItemStraightLine(this);
  ring_ = new QCPItemTracer(this);
  ring_->setStyle(QCPItemTracer::tsCircle);
  for (QCPAbstractItem* item : std::initializer_list<QCPAbstractItem*>{line_, across_, ring_}) {
    item->setLayer("overlay");
    item->setVisible(false);
  }
  marks_ = new MarkLabels(*this, "legend", MarkLabels::Beside::Above);
  pointed_ = new MarkLabels(*this, "overlay", MarkLabels::Beside::Right);
  line_->setAntialiased(false);
  across_->setAntialiased(false);
}

void ChartWidget::SetDescription(const ChartDescription& description) {
  chart_ = description;
  setAccessibleDescription(ChartText(chart_));
  selectedPlace_ = -1;
  drawn_ = false;
  MakeCurves();
  MakeCloud();
  MakeSurface();
  marks_->SetMarks(chart_.marks);
  pointed_->SetMarks({});
  xAxis->setRange(RangeOf(chart_.x));
  yAxis->setRange(RangeOf(chart_.y));
  ApplyColours();
  Fit(rect());
  replot(rpQueuedReplot);
}

void ChartWidget::MakeCurves() {
  clearPlottables();
  curves_.clear();
  for (const ChartSeries& series : chart_.Series()) {
    auto* curve = new CurveLine(xAxis, yAxis);
    curve->setPen(PenOf(series.pen));
    curve->setName(LegendText(ToQt(series.name)));
    curve->setSelectable(QCP::stNone);
    curves_.push_back(curve);
  }
}

void ChartWidget::MakeCloud() {
  const PointCloud* cloud = chart_.Cloud();
  if (cloud)
    cloud_ = new PointCloudPlot(xAxis, yAxis, *cloud);
  else
    cloud_ = nullptr;
  const bool tinted = cloud && !cloud->tint.empty();
  bar_.Show(tinted, tinted ? cloud->tintAxis : ChartAxis());
  if (cloud_) ApplyFonts();
}

/// A surface has the whole room, and axes of its own.
void ChartWidget::MakeSurface() {
  delete std::exchange(surfaceMark_, nullptr);
  delete std::exchange(surface_, nullptr);
  axisRect()->setVisible(!chart_.AsSurface());
  if (!chart_.AsSurface()) return;
  surface_ = new SurfacePlot(*this, *chart_.AsSurface());
  surfaceMark_ = new SurfaceMark(*this, *surface_);
  ApplyFonts();
}

void ChartWidget::ApplyColours() {
  const PaintedColours colours = ToPaint(chart_.colours, palette());
  setBackground(QBrush(colours.backdrop));
  for (QCPAxis* axis : {xAxis, yAxis, bar_.Axis()}) {
    if (!axis) continue;
    axis->setBasePen(QPen(colours.text, 1));
    axis->setTickPen(QPen(colours.text, 1));
    axis->setSubTickPen(QPen(colours.text, 1));
    axis->setTickLabelColor(colours.text);
    axis->setLabelColor(colours.text);
    axis->grid()->setPen(QPen(colours.grid, 1));
  }
  legend->setTextColor(colours.text);
  if (cloud_) cloud_->SetColours(colours);
  if (surface_) surface_->SetColours(colours);
  for (MarkLabels* marks : {marks_, pointed_}) marks->SetColours(colours);
  // Two lines that cross on a mark would hide it.
  const QColor lines = cloud_ ? Mix(colours.backdrop, colours.text, 0.5) : colours.text;
  for (QCPItemStraightLine* line : {line_, across_}) line->setPen(QPen(lines, 1));
  ring_->setPen(QPen(colours.text, 2));
}

void ChartWidget::ApplyFonts() {
  // Pixels, so that paper and files get the proportions of the screen.
  QFont font = this->font();
  font.setPixelSize(QFontInfo(font).pixelSize());
  const QFont digits = WithEvenDigits(font);
  const int line = QFontMetrics(font).height();
  for (QCPAxis* axis : {xAxis, yAxis, bar_.Axis()}) {
    if (!axis) continue;
    axis->setTickLabelFont(digits);
    axis->setTickLabelPadding(line / 3);
    axis->setLabelFont(font);
    axis->setLabelPadding(line / 3);
  }
  bar_.SetWidth(line);
  if (surface_) surface_->SetFonts(font, digits);
  for (MarkLabels* marks : {marks_, pointed_}) marks->SetFont(digits);
  legend->setFont(font);
  legend->setIconSize(line * 3 / 2, line);
  legend->setIconTextPadding(line / 2);
  // Hidden, it takes no room.
  legend->setMargins(cloud_ ? QMargins() : QMargins(line / 2, line / 2, line, line / 2));
  legend->setRowSpacing(line / 6);
  legend->setColumnSpacing(line);
  plotLayout()->setColumnSpacing(line / 2);
  ring_->setSize(std::max(line * 3 / 4.0, cloud_ ? cloud_->MarkDiameter() + line / 2.0 : 0));
}

void ChartWidget::Fit(const QRect& viewport) {
  setViewport(viewport);
  legend->setVisible(!chart_.Series().empty());
  FitLegend();
  FitTitles();
  FitNumbers();
  updateLayout();
  FitTitles();
  FitNumbers();
  const int columns = std::max(axisRect()->width(), 1);
  for (std::size_t i = 0; i < curves_.size(); ++i) {
    const ChartSeries& series = chart_.Series()[i];
    curves_[i]->SetLine(
        Decimate(series.x, series.y, xAxis->range().lower, xAxis->range().upper, columns));
  }
  ShowMark();
}

void ChartWidget::FitTitles() {
  const QFontMetricsF metrics(xAxis->labelFont());
  const auto show = [&](QCPAxis* axis, const std::string& title, int length) {
    if (axis) axis->setLabel(metrics.elidedText(ToQt(title), Qt::ElideRight, length));
  };
  show(xAxis, chart_.x.title, axisRect()->width());
  show(yAxis, chart_.y.title, axisRect()->height());
  if (bar_.Axis()) show(bar_.Axis(), chart_.Cloud()->tintAxis.title, bar_.Length());
}

void ChartWidget::FitNumbers() {
  const QFontMetricsF metrics(xAxis->tickLabelFont());
  const auto widest = [&](const ChartAxis& axis) {
    return std::max(metrics.horizontalAdvance(ToQt(FormatNumber(axis.min, axis.format))),
                    metrics.horizontalAdvance(ToQt(FormatNumber(axis.max, axis.format))));
  };
  const double width = widest(chart_.x);
  const auto show = [](QCPAxis& axis, const ChartAxis& told,
                       const std::vector<AxisNumber>& numbers) {
    auto ticker = qSharedPointerCast<QCPAxisTickerText>(axis.ticker());
    ticker->clear();
    for (const AxisNumber& number : numbers) ticker->addTick(number.at, ToQt(number.text));
    ticker->setSubTickCount(told.minorDivisions - 1);
    axis.setSubTicks(told.minorDivisions > 1);
  };
  show(*xAxis, chart_.x, AxisNumbers(chart_.x, axisRect()->width(), width + metrics.height()));
  show(*yAxis, chart_.y, AxisNumbers(chart_.y, axisRect()->height(), metrics.height() * 1.25));
  if (QCPAxis* axis = bar_.Axis())
    show(*axis, chart_.Cloud()->tintAxis,
         AxisNumbers(chart_.Cloud()->tintAxis, bar_.Length(), metrics.height() * 1.25));
  // Half of the outermost numbers stands beyond the ends of the axes.
  const int half = static_cast<int>(std::ceil(width / 2));
  const int above = static_cast<int>(std::ceil(metrics.height()));
  axisRect()->setMinimumMargins(QMargins(half, above, half, 0));
}

void ChartWidget::FitLegend() {
  const int line = QFontMetrics(legend->font()).height();
  qsizetype lines = 1;  // of the tallest entry
  for (const CurveLine* curve : curves_) lines = std::max(lines, curve->name().count('\n') + 1);
  const int entry = line * static_cast<int>(lines) + 2 * legend->rowSpacing();
  const int rows = std::max((viewport().height() - 3 * line) / entry, 1);
  if (legend->wrap() != rows) {
    legend->setWrap(rows);
    // Put in anew, the items take their places by the new count of rows.
    legend->clearItems();
    for (CurveLine* curve : curves_) curve->addToLegend(legend);
  }
  // An item clips its text to itself, and what hangs below the line needs a little more than the
  // line's height.
  for (int i = 0; i < legend->itemCount(); ++i)
    if (auto* item = legend->item(i)) item->setMargins(QMargins(0, 0, 0, legend->rowSpacing()));
}

void ChartWidget::Select(int place, int point) {
  selectedPlace_ = place;
  selectedPoint_ = point;
  ShowMark();
  RedrawMarks();
}

void ChartWidget::RedrawMarks() {
  // Until the chart has been drawn they come with the rest.
  if (drawn_) layer("overlay")->replot();
}

std::optional<QPointF> ChartWidget::MarkedPoint() const {
  if (surface_) return std::nullopt;
  const auto place = static_cast<std::size_t>(selectedPlace_);
  const auto at = static_cast<std::size_t>(selectedPoint_) - 1;
  const PointCloud* cloud = chart_.Cloud();
  const std::size_t places = cloud ? 1 : chart_.Series().size();
  if (selectedPlace_ < 0 || selectedPoint_ < 1 || place >= places) return std::nullopt;
  const auto& x = cloud ? cloud->x : chart_.Series()[place].x;
  const auto& y = cloud ? cloud->y : chart_.Series()[place].y;
  if (at >= std::min(x.size(), y.size()) || !std::isfinite(x[at]) || !std::isfinite(y[at]))
    return std::nullopt;
  if (cloud_ && !(xAxis->range().contains(x[at]) && yAxis->range().contains(y[at])))
    return std::nullopt;
  return QPointF(x[at], y[at]);
}

void ChartWidget::ShowMark() {
  if (surfaceMark_) surfaceMark_->Select(selectedPlace_ + 1, selectedPoint_);
  const std::optional<QPointF> at = MarkedPoint();
  line_->setVisible(at.has_value());
  across_->setVisible(at && cloud_);
  ring_->setVisible(at.has_value());
  if (!at) return;
  line_->point1->setCoords(at->x(), yAxis->range().lower);
  line_->point2->setCoords(at->x(), yAxis->range().upper);
  across_->point1->setCoords(xAxis->range().lower, at->y());
  across_->point2->setCoords(xAxis->range().upper, at->y());
  ring_->position->setCoords(*at);
  ring_->setClipToAxisRect(!cloud_);
  // Of a cloud, the mark itself is seen within the ring.
  ring_->setBrush(
      cloud_ ? QBrush()
             : ColourToQt(chart_.Series()[static_cast<std::size_t>(selectedPlace_)].pen.colour));
}

void ChartWidget::Paint(QCPPainter& painter, int width, int height) {
  Fit(QRect(0, 0, width, height));
  toPainter(&painter, width, height);
  Fit(rect());
}

void ChartWidget::resizeEvent(QResizeEvent* event) {
  Fit(rect());
  QCustomPlot::resizeEvent(event);
}

void ChartWidget::changeEvent(QEvent* event) {
  QCustomPlot::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::PaletteChange) return;
  ApplyFonts();
  ApplyColours();
  Fit(rect());
  replot(rpQueuedReplot);
}

void ChartWidget::mousePressEvent(QMouseEvent* event) {
  QCustomPlot::mousePressEvent(event);
  if (event->button() == Qt::RightButton) emit RightClicked();
}

void ChartWidget::ClickAt(QPointF pixel) {
  if (surface_) {
    if (const auto cell = surface_->CellAt(pixel)) emit PointClicked(cell->first - 1, cell->second);
    return;
  }
  if (cloud_) {
    if (const auto point = cloud_->PointAt(pixel)) emit PointClicked(0, *point + 1);
    return;
  }
  const auto found = NearestPoint(chart_, [&](double x, double y) {
    return std::hypot(xAxis->coordToPixel(x) - pixel.x(), yAxis->coordToPixel(y) - pixel.y());
  });
  if (found) emit PointClicked(found->place, found->point);
}

}  // namespace tarnview
