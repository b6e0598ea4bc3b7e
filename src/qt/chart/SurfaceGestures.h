#pragma once

#include <QObject>
#include <QPointF>

class QMouseEvent;
class QWheelEvent;

namespace tarnview {

class ChartWidget;

/// The mouse on a chart that shows a surface: a drag turns it, the wheel brings it nearer, a click
/// picks a cell. What comes faster than it is drawn is taken together.
class SurfaceGestures : public QObject {
  Q_OBJECT
 public:
  /// Lives as long as the chart; silent while that shows something else.
  explicit SurfaceGestures(ChartWidget& chart);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 signals:
  void Turned(double right, double up);  ///< whole degrees
  void Zoomed(double notches);
  void DoubleClicked();

 private:
  bool Press(const QMouseEvent& event);
  bool Move(const QMouseEvent& event);
  bool Release(const QMouseEvent& event);
  bool Wheel(const QWheelEvent& event);
  void Later();
  void WorkOff();

  ChartWidget& chart_;
  bool pressed_ = false;
  bool turning_ = false;
  QPointF grabbed_;
  QPointF last_;
  QPointF waitingTurn_;  ///< degrees to the right and up
  double waitingNotches_ = 0;
  bool waiting_ = false;
};

}  // namespace tarnview
