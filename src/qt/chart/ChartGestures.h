#pragma once

#include <QObject>
#include <QPointF>
#include <optional>

class QMouseEvent;
class QWheelEvent;
class QCPItemRect;
class QCPItemStraightLine;

namespace tarnview {

class ChartWidget;

/// The mouse on a chart, told in the units of the X axis. What comes faster than it is worked off
/// is taken together: of a wheel the sum counts, of a drag and of the pointer the newest place.
class ChartGestures : public QObject {
  Q_OBJECT
 public:
  /// Without `moves` a chart is clicked on and nothing more. Lives as long as the chart.
  ChartGestures(ChartWidget& chart, bool moves);

  /// A thin line at x; none takes it away.
  void ShowHairLine(std::optional<double> x);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 signals:
  void Turned(double x, double notches);
  void Marked(double x1, double x2);
  void Panned(double grabbed, double x);
  void DoubleClicked();
  void PointedAt(double x);
  void PointerLeft();

 private:
  enum class Drag { None, Click, Band, Pan };

  bool Press(const QMouseEvent& event);
  bool Move(const QMouseEvent& event);
  bool Release(const QMouseEvent& event);
  bool Turn(const QWheelEvent& event);
  void Leave();
  void Begin(Drag drag);
  void ShowBand(double to);
  void Later();
  void WorkOff();
  double XAt(double pixel) const;
  bool OnPlot(QPointF at) const;

  ChartWidget& chart_;
  const bool moves_;
  QCPItemStraightLine* hairLine_;
  QCPItemRect* band_;
  Drag drag_ = Drag::None;
  QPointF pressed_;     ///< pixel
  double grabbed_ = 0;  ///< x under it
  bool pointed_ = false;

  // Not worked off yet.
  double notches_ = 0;
  double turnedAt_ = 0;
  std::optional<double> pannedTo_;
  std::optional<QPointF> pointer_;
  bool waiting_ = false;
  bool working_ = false;
};

}  // namespace tarnview
