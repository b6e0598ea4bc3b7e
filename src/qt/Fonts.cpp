#include "qt/Fonts.h"

#include <QFontDatabase>
#include <QFontMetricsF>

namespace tarnview {

QFont WithEvenDigits(const QFont& font) {
  const QFontMetricsF metrics(font);
  bool even = true;
  for (const QChar digit : QStringLiteral("123456789"))
    even = even && qAbs(metrics.horizontalAdvance(digit) -
                        metrics.horizontalAdvance(QLatin1Char('0'))) < 0.01;
  if (even) return font;
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (font.pixelSize() > 0)
    fixed.setPixelSize(font.pixelSize());
  else
    fixed.setPointSizeF(font.pointSizeF());
  return fixed;
}

}  // namespace tarnview
