#include "qt/binder/GridWidget.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>
#include <algorithm>

#include "qt/Fonts.h"
#include "qt/Text.h"
#include "qt/binder/GridPainter.h"
#include "qt/binder/UpDownWidget.h"

namespace tarnview {
namespace {

/// The least that a cell has room for: the values of most grids are 0 to 255.
constexpr const char* kUsualValue = "888";

}  // namespace

GridWidget::GridWidget(QWidget* parent)
    : QWidget(parent), field_(new QLineEdit(this)), arrows_(new UpDownWidget(this)) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setFont(WithEvenDigits(font()));
  field_->setAlignment(Qt::AlignRight);
  field_->setObjectName("field");
  field_->hide();
  arrows_->hide();
  connect(field_, &QLineEdit::textEdited, this, &GridWidget::FieldEdited);
  connect(arrows_, &UpDownWidget::Up, this, [this] { emit Stepped(1); });
  connect(arrows_, &UpDownWidget::Down, this, [this] { emit Stepped(-1); });
}

void GridWidget::SetGrid(const Grid* grid) {
  grid_ = grid;
  ContentChanged();
}

void GridWidget::ContentChanged() {
  Measure();
  update();
}

void GridWidget::Measure() {
  if (!grid_) return;
  const QFontMetrics metrics(font());
  int heading = 0, cell = metrics.horizontalAdvance(kUsualValue);
  for (int row = 0; row < grid_->Rows(); ++row)
    for (int column = 0; column < grid_->Columns(); ++column) {
      int& widest = column == 0 ? heading : cell;
      widest = std::max(widest, metrics.horizontalAdvance(ToQt(grid_->Text(row, column))));
    }
  const QSize before = sizeHint();
  headingWidth_ = heading + metrics.height() * 2 / 3;
  cellWidth_ = cell + metrics.height() / 2;
  rowHeight_ = metrics.height() * 3 / 2;
  if (before != sizeHint()) updateGeometry();
}

QSize GridWidget::sizeHint() const {
  if (!grid_) return {};
  return {headingWidth_ + cellWidth_ * std::max(grid_->Columns() - 1, 0) + 1,
          rowHeight_ * grid_->Rows() + 1};
}

QRect GridWidget::RectOf(GridPlace cell) const {
  const int columns = std::max(grid_->Columns() - 1, 1), rows = std::max(grid_->Rows(), 1);
  const int right = width() - 1, bottom = std::min(height() - 1, rows * rowHeight_ * 3 / 2);
  const auto x = [&](int column) {
    return headingWidth_ + (right - headingWidth_) * column / columns;
  };
  const auto y = [&](int row) { return bottom * row / rows; };
  int left = 0;
  if (cell.column != 0) left = x(cell.column - 1);
  // One pixel at the right and at the foot is the line between.
  return QRect(QPoint(left + 1, y(cell.row) + 1), QPoint(x(cell.column) - 1, y(cell.row + 1) - 1));
}

GridPlace GridWidget::PlaceAt(QPoint pixel) const {
  GridPlace place;
  while (place.column < grid_->Columns() - 1 && pixel.x() > RectOf(place).right()) ++place.column;
  while (place.row < grid_->Rows() - 1 && pixel.y() > RectOf(place).bottom()) ++place.row;
  return place;
}

void GridWidget::paintEvent(QPaintEvent*) {
  if (!grid_ || grid_->Rows() == 0 || grid_->Columns() == 0) return;
  QPainter painter(this);
  const GridPainter cells(painter, palette(), hasFocus() || field_->hasFocus());
  const GridRange range = grid_->Selection();
  const QRect last = RectOf({grid_->Rows() - 1, grid_->Columns() - 1});
  painter.fillRect(QRect(QPoint(0, 0), last.bottomRight() + QPoint(1, 1)),
                   palette().color(QPalette::Mid));
  for (int row = 0; row < grid_->Rows(); ++row)
    for (int column = 0; column < grid_->Columns(); ++column) {
      const GridPlace at{row, column};
      const GridCell& cell = grid_->At(row, column);
      const bool lit = (row == 0 && column >= range.left && column <= range.right) ||
                       (column == 0 && row >= range.top && row <= range.bottom);
      if (row == 0 || column == 0)
        cells.Heading(RectOf(at), cell.text, lit && row + column > 0);
      else
        cells.Cell(RectOf(at), cell, range.Contains(at));
    }
  if (grid_->Current().row > 0) cells.Current(RectOf(grid_->Current()));
  if (const auto& ring = grid_->Ring()) {
    const QRect first = RectOf({1, 1}), next = RectOf({grid_->Rows() - 1, grid_->Columns() - 1});
    const auto between = [](double from, double to, double share) {
      return from + (to - from) * share;
    };
    const double x = (ring->column - 1) / std::max(grid_->Columns() - 2, 1);
    const double y = (ring->row - 1) / std::max(grid_->Rows() - 2, 1);
    const QPointF from = QRectF(first).center(), to = QRectF(next).center();
    cells.Ring({between(from.x(), to.x(), x), between(from.y(), to.y(), y)}, rowHeight_ * 0.45);
  }
}

void GridWidget::ShowField(bool wholeMarked) {
  const bool opens = grid_->IsEditing() && !field_->isVisible();
  if (!grid_->IsEditing()) {
    const bool hadFocus = field_->hasFocus();
    field_->hide();
    arrows_->hide();
    if (hadFocus) setFocus();
    return;
  }
  const QString text = ToQt(grid_->EditText());
  if (field_->text() != text) field_->setText(text);
  if (!opens) return;
  PlaceField();
  for (QWidget* part : {static_cast<QWidget*>(field_), static_cast<QWidget*>(arrows_)}) {
    part->show();
    part->raise();
  }
  field_->setFocus();
  if (wholeMarked) field_->selectAll();
}

/// Over its cell, and wide enough for what may be typed; the arrows stand at its right, at the edge
/// at its left.
void GridWidget::PlaceField() {
  if (!grid_->IsEditing()) return;
  const QRect cell = RectOf(grid_->Current());
  const int height = std::max(cell.height() + 2, field_->minimumSizeHint().height());
  const int least = QFontMetrics(font()).horizontalAdvance(kUsualValue) * 2;
  QRect place(0, 0, std::max(cell.width() + 2, least), height);
  place.moveCenter(cell.center());
  place.moveLeft(std::clamp(place.left(), 0, std::max(width() - place.width(), 0)));
  place.moveTop(std::clamp(place.top(), 0, std::max(this->height() - height, 0)));
  field_->setGeometry(place);
  QRect arrows(0, 0, arrows_->sizeHint().width(), height);
  if (place.right() + arrows.width() < width())
    arrows.moveTopLeft(place.topRight() + QPoint(1, 0));
  else
    arrows.moveTopLeft(place.topLeft() - QPoint(arrows.width(), 0));
  arrows_->setGeometry(arrows);
}

void GridWidget::resizeEvent(QResizeEvent*) {
  if (grid_) PlaceField();
}

void GridWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) ContentChanged();
}

bool GridWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !grid_ || grid_->Rows() == 0 || grid_->Columns() == 0)
    return QWidget::event(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const GridPlace at = PlaceAt(help.pos());
  const std::string& tip = grid_->At(at.row, at.column).toolTip;
  if (tip.empty()) return QWidget::event(event);
  QToolTip::showText(help.globalPos(), ToQt(tip), this, RectOf(at));
  return true;
}

void GridWidget::mousePressEvent(QMouseEvent* event) {
  if (!grid_ || grid_->Rows() == 0 || grid_->Columns() == 0) return;
  const GridPlace at = PlaceAt(event->pos());
  if (event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::ShiftModifier))
    emit Extended(at);
  else if (event->button() == Qt::LeftButton)
    emit Clicked(at);
}

void GridWidget::mouseMoveEvent(QMouseEvent* event) {
  if (grid_ && event->buttons().testFlag(Qt::LeftButton) && !grid_->IsEditing())
    emit Extended(PlaceAt(event->pos()));
}

void GridWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (grid_ && event->button() == Qt::LeftButton) emit DoubleClicked(PlaceAt(event->pos()));
}

void GridWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (!grid_) return;
  if (event->reason() == QContextMenuEvent::Keyboard)
    emit RightClicked(grid_->Current());
  else
    emit RightClicked(PlaceAt(event->pos()));
}

void GridWidget::keyPressEvent(QKeyEvent* event) {
  const QString text = event->text();
  const bool steers =
      event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (grid_ && !steers && !text.isEmpty() && text[0].isPrint())
    emit Typed(text);
  else
    QWidget::keyPressEvent(event);
}

}  // namespace tarnview
