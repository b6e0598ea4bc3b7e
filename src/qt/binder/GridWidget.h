#pragma once

#include <QWidget>
#include <optional>

#include "ui/Grid.h"

class QLineEdit;

namespace tarnview {

class UpDownWidget;

/// Draws a grid and tells what the mouse does to it. The columns of cells share the room evenly.
class GridWidget : public QWidget {
  Q_OBJECT
 public:
  explicit GridWidget(QWidget* parent = nullptr);

  /// The grid must outlive this, or be taken back with nullptr.
  void SetGrid(const Grid* grid);
  /// Texts, colours or the size have changed.
  void ContentChanged();
  /// Brings the field of the edited cell up to date; `wholeMarked`: a field that opens has its text
  /// marked.
  void ShowField(bool wholeMarked);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  QRect RectOf(GridPlace cell) const;
  /// The heading or cell under a pixel, drawn in to the nearest one.
  GridPlace PlaceAt(QPoint pixel) const;

 signals:
  void Clicked(GridPlace cell);
  void Extended(GridPlace cell);
  void DoubleClicked(GridPlace cell);
  void RightClicked(GridPlace cell);
  void Typed(const QString& text);
  void FieldEdited(const QString& text);
  void Stepped(int by);

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Measure();
  void PlaceField();

  const Grid* grid_ = nullptr;
  QLineEdit* field_;
  UpDownWidget* arrows_;
  int rowHeight_ = 0;
  int headingWidth_ = 0;  ///< of column 0
  int cellWidth_ = 0;     ///< the least that a column needs
};

}  // namespace tarnview
