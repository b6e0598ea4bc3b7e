#pragma once

#include <QWidget>

namespace tarnview {

/// Two small arrow buttons, one above the other, as tall as the field beside them. They repeat
/// while held.
class UpDownWidget : public QWidget {
  Q_OBJECT
 public:
  explicit UpDownWidget(QWidget* parent = nullptr);

  QSize sizeHint() const override;

 signals:
  void Up();
  void Down();
};

}  // namespace tarnview
