#include "qt/binder/UpDownWidget.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace tarnview {

UpDownWidget::UpDownWidget(QWidget* parent) : QWidget(parent) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  const auto add = [&](Qt::ArrowType arrow, const QString& says, void (UpDownWidget::*pressed)()) {
    auto* button = new QToolButton;
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAccessibleName(says);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    connect(button, &QToolButton::clicked, this, pressed);
    column->addWidget(button);
  };
  add(Qt::UpArrow, tr("Up"), &UpDownWidget::Up);
  add(Qt::DownArrow, tr("Down"), &UpDownWidget::Down);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
}

QSize UpDownWidget::sizeHint() const {
  const int line = fontMetrics().height();
  return QSize(line * 5 / 4, line * 3 / 2);
}

}  // namespace tarnview
