#include "qt/Text.h"

#include <QFile>
#include <QTextDocument>
#include <utility>

#include "base/Text.h"

namespace tarnview {
namespace {

/// A byte that is no text stands as half a character that no text holds: U+DC80 to U+DCFF.
constexpr char16_t kEscape = 0xDC00;
bool IsEscaped(QChar one) {
  return one.unicode() >= kEscape + 0x80 && one.unicode() <= kEscape + 0xFF;
}

}  // namespace

QString ToQt(const std::string& text) { return QString::fromStdString(ToUtf8(text)); }
std::string FromQt(const QString& text) { return FromUtf8(text.toStdString()); }

QString ShownToQt(const std::string& text) { return QString::fromStdString(ShownAsUtf8(text)); }

QString TipToQt(const std::string& text) {
  const QString tip = ShownToQt(text);
  if (Qt::mightBeRichText(tip)) return Qt::convertFromPlainText(tip);
  return tip;
}

QString CaptionToQt(const std::string& text) { return ShownToQt(text).replace("[*]", "[*][*]"); }

QString PathToQt(const std::string& path) {
  const QByteArray bytes = QByteArray::fromStdString(path);
  QString name = QFile::decodeName(bytes);
  if (QFile::encodeName(name) == bytes) return name;
  name.clear();
  for (const char one : path) {
    const auto byte = static_cast<unsigned char>(one);
    name += QChar(byte < 0x80 ? byte : kEscape + byte);
  }
  return name;
}

std::string PathFromQt(const QString& path) {
  std::string bytes;
  QString plain;
  const auto flush = [&] { bytes += QFile::encodeName(std::exchange(plain, {})).toStdString(); };
  for (qsizetype i = 0; i < path.size(); ++i) {
    const bool second = i > 0 && path[i - 1].isHighSurrogate();
    if (second || !IsEscaped(path[i])) {
      plain += path[i];
      continue;
    }
    flush();
    bytes += static_cast<char>(path[i].unicode() - kEscape);
  }
  flush();
  return bytes;
}

QColor ColourToQt(long colour) {
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                static_cast<int>(colour >> 16 & 0xFF));
}

long ColourFromQt(const QColor& colour) {
  return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

}  // namespace tarnview
