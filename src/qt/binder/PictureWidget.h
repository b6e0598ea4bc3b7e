#pragma once

#include <QWidget>

#include "ui/Picture.h"

namespace tarnview {

/// Paints a drawing of twips, as many of them to a pixel as the desktop's resolution says.
class PictureWidget : public QWidget {
  Q_OBJECT
 public:
  explicit PictureWidget(QWidget* parent = nullptr) : QWidget(parent) {}

  /// `backColour` is 0xBBGGRR, or -1 for the palette's.
  void Show(const Drawing& drawing, long backColour);
  QSize SizeInTwips() const;
  QSize sizeHint() const override;

 signals:
  void Resized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  double TwipsPerPixel() const;

  Drawing drawing_;
  long backColour_ = -1;
};

}  // namespace tarnview
