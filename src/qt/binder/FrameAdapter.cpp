#include "qt/binder/FrameAdapter.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QWidget>

#include "base/FileSystem.h"

namespace tarnview {
namespace {

/// Faint enough for the texts in front to be read.
constexpr double kOpacity = 0.4;

/// Read as every file is, under a name of any bytes, and never from a pipe that nobody fills. None
/// for what is none.
QPixmap PictureIn(const std::string& path) {
  QPixmap picture;
  if (const auto bytes = RealFileSystem().Read(path)) {
    const std::string_view all = *bytes;
    picture.loadFromData(reinterpret_cast<const uchar*>(all.data()), static_cast<uint>(all.size()));
  }
  return picture;
}

}  // namespace

FrameAdapter::FrameAdapter(Frame& frame, QWidget& view, Binder& binder)
    : Adapter(frame, &view, binder), frame_(frame), view_(view) {
  view.installEventFilter(this);
}

void FrameAdapter::ShowContent() {
  const std::string& path = frame_.BackgroundPicture();
  if (path.empty() && picture_.isNull()) return;
  if (path.empty())
    picture_ = QPixmap();
  else
    picture_ = PictureIn(path);
  view_.update();
}

bool FrameAdapter::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Paint || picture_.isNull()) return false;
  QPainter painter(&view_);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setOpacity(kOpacity);
  const QSize size = picture_.size().scaled(view_.size(), Qt::KeepAspectRatio);
  painter.drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, view_.rect()),
                     picture_);
  return false;
}

}  // namespace tarnview
