#pragma once

#include <QFont>

namespace tarnview {

/// The font itself if its digits are all of one width, else a font that has such digits.
QFont WithEvenDigits(const QFont& font);

}  // namespace tarnview
