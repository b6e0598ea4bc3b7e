#include "qt/icons/Looks.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QScrollArea>
#include <QToolBar>
#include <QVariant>
#include <QWidget>

#include "qt/icons/Icons.h"

namespace tarnview {
namespace {

template <class Kind>
void SetIconsOf(QWidget& window) {
  for (Kind* one : window.findChildren<Kind*>())
    if (const auto name = one->property("picture").toString(); !name.isEmpty())
      one->setIcon(TintedIcon(name));
}

void SetLabel(QLabel& label) {
  if (const double scale = label.property("fontScale").toDouble(); scale > 0) {
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * scale);
    label.setFont(font);
  }
  if (const int lines = label.property("lines").toInt(); lines > 0) {
    const int size = lines * label.fontMetrics().height();
    label.setPixmap(ProgramIcon().pixmap(QSize(size, size), label.devicePixelRatioF()));
  }
}

}  // namespace

void SetLooks(QWidget& window) {
  SetIconsOf<QAction>(window);
  SetIconsOf<QAbstractButton>(window);
  const int icon = window.fontMetrics().height() * 4 / 3;
  for (QToolBar* bar : window.findChildren<QToolBar*>()) bar->setIconSize(QSize(icon, icon));
  for (QScrollArea* area : window.findChildren<QScrollArea*>())
    if (area->property("clear").toBool()) {
      area->viewport()->setAutoFillBackground(false);
      area->widget()->setAutoFillBackground(false);
    }
  for (QLabel* label : window.findChildren<QLabel*>()) SetLabel(*label);
}

}  // namespace tarnview
