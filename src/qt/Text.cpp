#include "qt/Text.h"

#include <QFile>

#include "base/Text.h"

namespace tarnview {

QString ToQt(const std::string& text) { return QString::fromStdString(ToUtf8(text)); }
std::string FromQt(const QString& text) { return FromUtf8(text.toStdString()); }

QString ShownToQt(const std::string& text) { return QString::fromStdString(ShownAsUtf8(text)); }

QString PathToQt(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }
std::string PathFromQt(const QString& path) { return QFile::encodeName(path).toStdString(); }

QColor ColourToQt(long colour) {
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                static_cast<int>(colour >> 16 & 0xFF));
}

long ColourFromQt(const QColor& colour) { return colour.red() | colour.green() << 8 | colour.blue() << 16; }

}  // namespace tarnview
