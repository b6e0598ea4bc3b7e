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

PaintedColours ToPaint(const ChartColours& colours, const QPalette& palette);

}  // namespace tarnview
