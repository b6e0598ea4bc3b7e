#pragma once

#include <qcustomplot.h>

#include "qt/chart/ChartColours.h"
#include "ui/SurfaceScene.h"

namespace tarnview {

/// A surface over the whole of a chart, with its titles and the texts of its axes.
class SurfacePlot : public QCPLayerable {
 public:
  /// The surface stays the caller's and must stay as it is while this is shown.
  SurfacePlot(QCustomPlot& plot, const Surface& surface);

  void SetColours(const PaintedColours& colours) { colours_ = colours; }
  void SetFonts(const QFont& texts, const QFont& digits);
  /// Row and column from 1; none for a place where no cell is.
  std::optional<std::pair<int, int>> CellAt(const QPointF& pixel) const;
  /// What `mark` draws.
  void DrawMark(QCPPainter& painter, int row, int column) const;

 protected:
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override {
    painter->setAntialiasing(true);
  }
  void draw(QCPPainter* painter) override;

 private:
  SceneRoom Room() const;
  void DrawTitles(QCPPainter& painter) const;
  void DrawLines(QCPPainter& painter, const SurfaceScene& scene) const;
  void DrawFaces(QCPPainter& painter, const SurfaceScene& scene) const;
  void DrawLabels(QCPPainter& painter, const SurfaceScene& scene) const;
  QColor ColourOf(const SceneFace& face) const;

  const Surface& surface_;
  PaintedColours colours_;
  QFont texts_;
  QFont digits_;
  QFont title_;
};

/// The mark of a surface's selected cell, over it.
class SurfaceMark : public QCPLayerable {
 public:
  SurfaceMark(QCustomPlot& plot, const SurfacePlot& surface);
  void Select(int row, int column);

 protected:
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override {
    painter->setAntialiasing(true);
  }
  void draw(QCPPainter* painter) override { surface_.DrawMark(*painter, row_, column_); }

 private:
  const SurfacePlot& surface_;
  int row_ = 0;
  int column_ = 0;
};

}  // namespace tarnview
