#include "qt/chart/SurfaceGestures.h"

#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <cmath>
#include <utility>

#include "qt/chart/ChartWidget.h"
#include "qt/chart/Wheel.h"

namespace tarnview {
namespace {

/// Pixels: a hand that clicks moves less.
constexpr double kLeastDrag = 4;
/// A drag across a window of usual size is half a turn.
constexpr double kDegreesOfAPixel = 0.3;

}  // namespace

SurfaceGestures::SurfaceGestures(ChartWidget& chart) : QObject(&chart), chart_(chart) {
  chart.installEventFilter(this);
}

bool SurfaceGestures::eventFilter(QObject* receiver, QEvent* event) {
  if (!ChartWidget::IsWhole(receiver) || !chart_.ShowsSurface()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      return Press(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove:
      return Move(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
      return Release(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonDblClick:
      if (static_cast<QMouseEvent&>(*event).button() != Qt::LeftButton) return false;
      pressed_ = false;
      emit DoubleClicked();
      return true;
    case QEvent::Wheel:
      return Wheel(static_cast<QWheelEvent&>(*event));
    default:
      return false;
  }
}

bool SurfaceGestures::Press(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  pressed_ = true;
  turning_ = false;
  grabbed_ = last_ = event.position();
  return true;
}

bool SurfaceGestures::Move(const QMouseEvent& event) {
  if (!pressed_) return false;
  const QPointF moved = event.position() - grabbed_;
  if (!turning_ && std::max(std::abs(moved.x()), std::abs(moved.y())) < kLeastDrag) return true;
  if (!std::exchange(turning_, true)) chart_.setCursor(Qt::ClosedHandCursor);
  const QPointF step = event.position() - std::exchange(last_, event.position());
  waitingTurn_ += QPointF(step.x(), -step.y()) * kDegreesOfAPixel;
  Later();
  return true;
}

bool SurfaceGestures::Release(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || !std::exchange(pressed_, false)) return false;
  chart_.unsetCursor();
  if (!std::exchange(turning_, false)) chart_.ClickAt(grabbed_);
  return true;
}

bool SurfaceGestures::Wheel(const QWheelEvent& event) {
  waitingNotches_ += Notches(event);
  Later();
  return true;
}

void SurfaceGestures::Later() {
  if (std::exchange(waiting_, true)) return;
  QTimer::singleShot(0, this, &SurfaceGestures::WorkOff);
}

/// Angles are whole degrees: what is less waits for more.
void SurfaceGestures::WorkOff() {
  waiting_ = false;
  const QPointer<SurfaceGestures> self(this);
  const double right = std::trunc(waitingTurn_.x()), up = std::trunc(waitingTurn_.y());
  if (right != 0 || up != 0) {
    waitingTurn_ -= QPointF(right, up);
    emit Turned(right, up);
  }
  if (self && waitingNotches_ != 0) emit Zoomed(std::exchange(waitingNotches_, 0.0));
}

}  // namespace tarnview
