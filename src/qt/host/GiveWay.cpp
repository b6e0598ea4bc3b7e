#include "qt/host/GiveWay.h"

#include <QEvent>
#include <QHeaderView>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTreeWidget>
#include <algorithm>

namespace tarnview {
namespace {

constexpr const char* kProperty = "givesWay";
/// Rows of a list that stays, before another part goes; and as few as the lowest window leaves it.
constexpr int kRows = 10, kLeastRows = 4;

int HeightOf(const QTreeWidget& list, int rows) {
  const int row = std::max(list.sizeHintForRow(0), list.fontMetrics().height() + 4);
  const int heading = list.isHeaderHidden() ? 0 : list.header()->sizeHint().height();
  return heading + rows * row + 2 * list.frameWidth();
}

int HeightOf(const QWidget& part, int rows) {
  const auto* list = qobject_cast<const QTreeWidget*>(&part);
  if (list) return HeightOf(*list, rows);
  return part.minimumSizeHint().height();
}

/// A part whose content is not on show takes no room anyway.
bool IsEmpty(const QWidget& part) {
  const auto children = part.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  return std::all_of(children.begin(), children.end(),
                     [](const QWidget* child) { return child->isHidden(); });
}

}  // namespace

GiveWay::GiveWay(QSplitter& column) : QObject(&column), column_(column) {
  const QStringList names = column.property(kProperty).toString().split(' ', Qt::SkipEmptyParts);
  for (const QString& name : names)
    if (auto* part = column.findChild<QWidget*>(name)) order_.push_back(part);
  int least = 0;
  for (int i = 0; i < column.count(); ++i) {
    QWidget* part = column.widget(i);
    const bool goes = std::find(order_.begin(), order_.end(), part) != order_.end();
    if (!goes) least += HeightOf(*part, kLeastRows);
    if (goes) part->installEventFilter(this);
  }
  column.setMinimumHeight(least);
  column.installEventFilter(this);
}

bool GiveWay::eventFilter(QObject* receiver, QEvent* event) {
  const bool sized =
      receiver == &column_ && (event->type() == QEvent::Resize || event->type() == QEvent::Show);
  // What a part holds comes and goes with the log.
  const bool changed = receiver != &column_ && event->type() == QEvent::LayoutRequest;
  if (sized || changed) Fit();
  return false;
}

int GiveWay::Needed(const std::vector<const QWidget*>& gone) const {
  int needed = 0, shown = 0;
  for (int i = 0; i < column_.count(); ++i) {
    const QWidget* part = column_.widget(i);
    if (std::find(gone.begin(), gone.end(), part) != gone.end()) continue;
    needed += HeightOf(*part, kRows);
    ++shown;
  }
  return needed + std::max(shown - 1, 0) * column_.handleWidth();
}

void GiveWay::Fit() {
  std::vector<const QWidget*> gone;
  for (const auto& part : order_)
    if (!part || IsEmpty(*part)) gone.push_back(part);
  for (const auto& part : order_)
    if (part && !IsEmpty(*part) && Needed(gone) > column_.height()) gone.push_back(part);
  for (const auto& part : order_) {
    const bool goes = std::find(gone.begin(), gone.end(), part) != gone.end();
    if (part && part->isHidden() != goes) part->setHidden(goes);
  }
}

void GiveWayIn(QWidget& window) {
  for (QSplitter* column : window.findChildren<QSplitter*>())
    if (column->dynamicPropertyNames().contains(kProperty)) new GiveWay(*column);
}

namespace {

/// Scrolls up and down alone, so it is never narrower than what is in it and the bar beside that,
/// also when its texts and lists have grown.
class UprightScroll : public QScrollArea {
 public:
  void KeepWide() {
    const int bar = verticalScrollBar()->sizeHint().width();
    setMinimumWidth(widget()->minimumSizeHint().width() + bar);
  }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    const bool taken = QScrollArea::eventFilter(receiver, event);
    if (receiver == widget() && event->type() == QEvent::LayoutRequest) KeepWide();
    return taken;
  }
};

}  // namespace

void LetScrollIn(QWidget& window) {
  for (QWidget* part : window.findChildren<QWidget*>()) {
    if (!part->property("scrolls").toBool()) continue;
    auto* area = new UprightScroll;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setSizePolicy(part->sizePolicy());
    if (auto* splitter = qobject_cast<QSplitter*>(part->parentWidget()))
      splitter->replaceWidget(splitter->indexOf(part), area);
    else if (QLayout* layout = part->parentWidget()->layout())
      delete layout->replaceWidget(part, area);
    area->setWidget(part);
    area->KeepWide();
    part->setAutoFillBackground(false);
    area->viewport()->setAutoFillBackground(false);
  }
}

}  // namespace tarnview
