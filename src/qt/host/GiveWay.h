#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

class QSplitter;
class QWidget;

namespace tarnview {

/// Lets parts of a column go where it is too low for all of them, so that a small screen keeps what
/// is needed most: a splitter names them in its property "givesWay", in the order in which they go
/// ("zonePlace presetPlace"). Each comes back when there is room.
class GiveWay : public QObject {
 public:
  explicit GiveWay(QSplitter& column);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  void Fit();
  /// Pixels that all parts need but those that have gone.
  int Needed(const std::vector<const QWidget*>& gone) const;

  QSplitter& column_;
  std::vector<QPointer<QWidget>> order_;
};

/// A part that is taller than a small screen and bears the property "scrolls" gets a scroll bar
/// where it must.
void LetScrollIn(QWidget& window);

/// Every splitter of a window that names parts to give way.
void GiveWayIn(QWidget& window);

}  // namespace tarnview
