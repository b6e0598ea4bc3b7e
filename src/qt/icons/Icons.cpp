#include "qt/icons/Icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

// The pictures lie in a static library, whose start-up code the linker would leave out.
static void LoadPictures() { Q_INIT_RESOURCE(icons); }

namespace tarnview {
namespace {

QString FileOf(const QString& name) {
  LoadPictures();
  return ":/icons/" + name + ".svg";
}

class TintedEngine : public QIconEngine {
 public:
  explicit TintedEngine(QString name) : name_(std::move(name)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal scale = painter->device()->devicePixelRatioF();
    QPixmap picture = scaledPixmap(rect.size() * scale, mode, state, scale);
    painter->drawPixmap(rect, picture);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(FileOf(name_)).render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    painter.fillRect(picture.rect(), QApplication::palette().color(group, QPalette::ButtonText));
    return picture;
  }
  QIconEngine* clone() const override { return new TintedEngine(*this); }

 private:
  QString name_;
};

}  // namespace

QIcon TintedIcon(const QString& name) { return QIcon(new TintedEngine(name)); }

QIcon ProgramIcon() { return QIcon(FileOf("tarnview")); }

QIcon ColourChip(const QColor& colour, int size) {
  QIcon icon;
  for (const int scale : {1, 2}) {
    QPixmap picture(size * scale, size * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!colour.isValid()) painter.setOpacity(0);
    // A thin rim keeps a white chip visible on white and a black one on black.
    painter.setPen(QPen(QColor(128, 128, 128), 1));
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(1.5, 1.5, size - 3, size - 3), 2, 2);
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected, QIcon::Disabled})
      icon.addPixmap(picture, mode);
  }
  return icon;
}

}  // namespace tarnview
