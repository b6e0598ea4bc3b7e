#pragma once

#include <QColor>
#include <QPalette>

#include "ui/ChartDescription.h"

namespace tarnview {

/// The colours of a chart as they are painted: the desktop's button face resolved, the grid faint.
struct PaintedColours {
  QColor backdrop;
  QColor text;
  QColor grid;
};

/// `share` of the way from one colour to the other.
QColor Mix(const QColor& from, const QColor& to, double share);

PaintedColours ToPaint(const ChartColours& colours, const QPalette& palette);

}  // namespace tarnview
