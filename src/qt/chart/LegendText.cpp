#include "qt/chart/LegendText.h"

#include <QStringList>

namespace tarnview {
namespace {

constexpr int kLongestLine = 24;

QString Shortened(const QString& word) {
  if (word.size() > kLongestLine) return word.left(kLongestLine - 1) + QChar(0x2026);
  return word;
}

}  // namespace

QString LegendText(const QString& name) {
  if (name.size() <= kLongestLine) return name;
  QStringList lines;
  for (const QString& part : name.split(' ')) {
    const QString word = Shortened(part);
    const bool fits = !lines.empty() && !word.startsWith('(') &&
                      lines.back().size() + 1 + word.size() <= kLongestLine;
    if (fits)
      lines.back() += ' ' + word;
    else
      lines.append(word);
  }
  return lines.join('\n');
}

}  // namespace tarnview
