#include "qt/binder/FrameAdapter.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QWidget>

#include "qt/Text.h"

namespace tarnview {
namespace {

/// Faint enough for the texts in front to be read.
constexpr double kOpacity = 0.4;

}  // namespace

FrameAdapter::FrameAdapter(Frame& frame, QWidget& view, Binder& binder)
    : Adapter(frame, &view, binder), frame_(frame), view_(view) {
  view.installEventFilter(this);
}

void FrameAdapter::ShowContent() {
  const std::string& path = frame_.BackgroundPicture();
  if (path.empty() && picture_.isNull()) return;
  picture_ = path.empty() ? QPixmap() : QPixmap(PathToQt(path));
  view_.update();
}

bool FrameAdapter::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Paint || picture_.isNull()) return false;
  QPainter painter(&view_);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setOpacity(kOpacity);
  const QSize size = picture_.size().scaled(view_.size(), Qt::KeepAspectRatio);
  painter.drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, view_.rect()), picture_);
  return false;
}

}  // namespace tarnview
