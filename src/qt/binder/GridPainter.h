#pragma once

#include <QPainter>
#include <QPalette>

#include "ui/Grid.h"

namespace tarnview {

/// How the cells of a grid look, one at a time.
class GridPainter {
 public:
  GridPainter(QPainter& painter, const QPalette& palette, bool active)
      : painter_(painter), palette_(palette), active_(active) {}

  void Heading(const QRect& place, const std::string& text, bool lit) const;
  void Cell(const QRect& place, const GridCell& cell, bool selected) const;
  /// The frame of the current cell.
  void Current(const QRect& place) const;
  void Ring(const QPointF& centre, double radius) const;

 private:
  void Text(const QRect& place, const std::string& text, const QColor& colour) const;
  void Mark(const QRect& place, GridCell::Mark mark) const;
  QColor BackOf(const GridCell& cell) const;
  QColor TextOf(const GridCell& cell, const QColor& back) const;

  QPainter& painter_;
  const QPalette& palette_;
  const bool active_;  ///< the grid has the focus
};

}  // namespace tarnview
