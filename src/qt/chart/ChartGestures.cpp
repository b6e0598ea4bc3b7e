#include "qt/chart/ChartGestures.h"

#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/chart/ChartWidget.h"
#include "qt/chart/Wheel.h"

namespace tarnview {
namespace {

/// Pixels: a hand that clicks moves less.
constexpr double kLeastDrag = 5;
/// A touchpad tells small parts of a notch; they wait until they are worth a draw.
constexpr double kLeastTurn = 0.25;

}  // namespace

ChartGestures::ChartGestures(ChartWidget& chart, bool moves)
    : QObject(&chart),
      chart_(chart),
      moves_(moves),
      hairLine_(new QCPItemStraightLine(&chart)),
      band_(new QCPItemRect(&chart)) {
  for (QCPAbstractItem* item : std::initializer_list<QCPAbstractItem*>{hairLine_, band_}) {
    item->setLayer("overlay");
    item->setVisible(false);
    item->setAntialiased(false);
  }
  chart.installEventFilter(this);
}

void ChartGestures::ShowHairLine(std::optional<double> x) {
  if (!x && !hairLine_->visible()) return;
  hairLine_->setVisible(x.has_value());
  if (x) {
    hairLine_->setPen(QPen(chart_.xAxis->basePen().color(), 1, Qt::DotLine));
    hairLine_->point1->setCoords(*x, chart_.yAxis->range().lower);
    hairLine_->point2->setCoords(*x, chart_.yAxis->range().upper);
  }
  chart_.RedrawMarks();
}

void ChartGestures::ShowBand(double to) {
  band_->setVisible(drag_ == Drag::Band);
  QColor colour = chart_.palette().color(QPalette::Highlight);
  band_->setPen(QPen(colour, 1));
  colour.setAlphaF(0.25F);
  band_->setBrush(colour);
  band_->topLeft->setCoords(grabbed_, chart_.yAxis->range().upper);
  band_->bottomRight->setCoords(to, chart_.yAxis->range().lower);
  chart_.RedrawMarks();
}

double ChartGestures::XAt(double pixel) const {
  const QRect plot = chart_.axisRect()->rect();
  return chart_.xAxis->pixelToCoord(std::clamp<double>(pixel, plot.left(), plot.right()));
}

bool ChartGestures::OnPlot(QPointF at) const {
  return chart_.axisRect()->rect().contains(at.toPoint());
}

bool ChartGestures::eventFilter(QObject* receiver, QEvent* event) {
  if (!ChartWidget::IsWhole(receiver) || chart_.ShowsSurface()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      return Press(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove:
      return Move(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
      return Release(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonDblClick: {
      const auto& click = static_cast<QMouseEvent&>(*event);
      if (!moves_ || click.button() != Qt::LeftButton || !OnPlot(click.position())) return false;
      Begin(Drag::None);
      emit DoubleClicked();
      return true;
    }
    case QEvent::Wheel:
      return moves_ && Turn(static_cast<QWheelEvent&>(*event));
    case QEvent::Leave:
    case QEvent::Hide:
      Leave();
      return false;
    default:
      return false;
  }
}

bool ChartGestures::Press(const QMouseEvent& event) {
  if (drag_ != Drag::None) {
    // A second button calls the drag off.
    Begin(Drag::None);
    return true;
  }
  const bool left = event.button() == Qt::LeftButton;
  if ((!left && event.button() != Qt::MiddleButton) || !OnPlot(event.position())) return false;
  pressed_ = event.position();
  grabbed_ = XAt(pressed_.x());
  const bool pans = moves_ && (!left || event.modifiers().testFlag(Qt::ShiftModifier));
  const Drag plain = left ? Drag::Click : Drag::None;
  Begin(pans ? Drag::Pan : plain);
  return true;
}

void ChartGestures::Begin(Drag drag) {
  drag_ = drag;
  pannedTo_.reset();
  if (drag == Drag::Pan)
    chart_.setCursor(Qt::ClosedHandCursor);
  else if (drag == Drag::Band)
    chart_.setCursor(Qt::SizeHorCursor);
  else
    chart_.unsetCursor();
  if (band_->visible()) ShowBand(grabbed_);
}

bool ChartGestures::Move(const QMouseEvent& event) {
  const QPointF at = event.position();
  const double far = std::max(std::abs(at.x() - pressed_.x()), std::abs(at.y() - pressed_.y()));
  if (drag_ == Drag::Click && moves_ && far >= kLeastDrag) Begin(Drag::Band);
  if (drag_ == Drag::Band) ShowBand(XAt(at.x()));
  // Beyond the edge, too, the graph goes on with the hand.
  if (drag_ == Drag::Pan) pannedTo_ = chart_.xAxis->pixelToCoord(at.x());
  if (!moves_) return false;
  pointer_ = at;
  Later();
  return false;
}

bool ChartGestures::Release(const QMouseEvent& event) {
  const Drag drag = drag_;
  if (drag == Drag::None) return false;
  if (drag == Drag::Pan && pannedTo_) WorkOff();
  Begin(Drag::None);
  if (drag == Drag::Click) chart_.ClickAt(pressed_);
  if (drag != Drag::Band) return true;
  const double to = XAt(event.position().x());
  // Back at its start, it was thought better of.
  if (std::abs(event.position().x() - pressed_.x()) >= kLeastDrag)
    emit Marked(std::min(grabbed_, to), std::max(grabbed_, to));
  return true;
}

bool ChartGestures::Turn(const QWheelEvent& event) {
  notches_ += Notches(event);
  turnedAt_ = event.position().x();
  if (drag_ == Drag::None && std::abs(notches_) >= kLeastTurn) Later();
  return true;
}

void ChartGestures::Leave() {
  pointer_.reset();
  if (std::exchange(pointed_, false)) emit PointerLeft();
}

void ChartGestures::Later() {
  if (std::exchange(waiting_, true)) return;
  QTimer::singleShot(0, this, &ChartGestures::WorkOff);
}

/// A draw lets events run, so that this may be called while it is at work; what has come then is
/// worked off after it.
void ChartGestures::WorkOff() {
  waiting_ = false;
  if (working_) return;
  working_ = true;
  const QPointer<ChartGestures> self(this);
  if (pannedTo_) {
    const double x = *std::exchange(pannedTo_, std::nullopt);
    emit Panned(grabbed_, x);
  } else if (std::abs(notches_) >= kLeastTurn) {
    emit Turned(XAt(turnedAt_), std::exchange(notches_, 0.0));
  }
  if (!self) return;
  if (pointer_) {
    const QPointF at = *std::exchange(pointer_, std::nullopt);
    const bool wasOnPlot = std::exchange(pointed_, OnPlot(at));
    if (pointed_)
      emit PointedAt(XAt(at.x()));
    else if (wasOnPlot)
      emit PointerLeft();
  }
  if (!self) return;
  working_ = false;
  if (pannedTo_ || pointer_ || std::abs(notches_) >= kLeastTurn) Later();
}

}  // namespace tarnview
