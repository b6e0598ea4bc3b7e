#pragma once

#include <QPixmap>

#include "qt/binder/Adapter.h"
#include "ui/Frame.h"

class QWidget;

namespace tarnview {

/// A frame without a caption, perhaps with a picture behind what it holds.
class FrameAdapter : public Adapter {
 public:
  FrameAdapter(Frame& frame, QWidget& view, Binder& binder);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 protected:
  void ShowContent() override;

 private:
  Frame& frame_;
  QWidget& view_;
  QPixmap picture_;
};

}  // namespace tarnview
