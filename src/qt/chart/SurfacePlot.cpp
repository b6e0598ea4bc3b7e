#include "qt/chart/SurfacePlot.h"

#include <algorithm>
#include <array>

#include "qt/Text.h"
#include "qt/chart/PointShades.h"

namespace tarnview {
namespace {

QPointF ToPoint(const ScenePoint& point) { return {point.x, point.y}; }

/// Shares on the way from the backdrop to the texts' colour.
constexpr double kSkirtShade = 0.28;
constexpr double kLockedShade = 0.5;
constexpr double kMeshDarkness = 0.4;
constexpr double kRingSize = 0.45;  ///< of a line of text
/// Lines of text that the titles take.
constexpr double kTitleRoom = 2.9;
/// A click is for a cell if it is no farther off than so many lines of text.
constexpr double kReach = 1.5;

}  // namespace

SurfacePlot::SurfacePlot(QCustomPlot& plot, const Surface& surface)
    : QCPLayerable(&plot, "main"), surface_(surface) {}

void SurfacePlot::SetFonts(const QFont& texts, const QFont& digits) {
  texts_ = texts;
  digits_ = digits;
  title_ = texts;
  title_.setBold(true);
  title_.setPixelSize(texts.pixelSize() * 5 / 4);
}

SceneRoom SurfacePlot::Room() const {
  const QFontMetricsF metrics(digits_);
  const QRect viewport = parentPlot()->viewport();
  const double line = metrics.height();
  return {static_cast<double>(viewport.width()), static_cast<double>(viewport.height()),
          kTitleRoom * line, line,
          [metrics](const std::string& text) { return metrics.horizontalAdvance(ToQt(text)); }};
}

std::optional<std::pair<int, int>> SurfacePlot::CellAt(const QPointF& pixel) const {
  const SceneRoom room = Room();
  const auto columns = static_cast<int>(surface_.columns.size());
  return tarnview::CellAt(MakeScene(surface_, room), columns, {pixel.x(), pixel.y()},
                          kReach * room.line);
}

void SurfacePlot::draw(QCPPainter* painter) {
  const SurfaceScene scene = MakeScene(surface_, Room());
  DrawLines(*painter, scene);
  DrawFaces(*painter, scene);
  DrawLabels(*painter, scene);
  DrawTitles(*painter);
}

void SurfacePlot::DrawTitles(QCPPainter& painter) const {
  const double line = QFontMetricsF(digits_).height();
  const double width = parentPlot()->viewport().width();
  painter.setPen(colours_.text);
  painter.setFont(title_);
  painter.drawText(QRectF(0, line * 0.4, width, line * 1.4), Qt::AlignCenter, ToQt(surface_.title));
  painter.setFont(texts_);
  painter.drawText(QRectF(0, line * 1.7, width, line * 1.2), Qt::AlignCenter,
                   ToQt(surface_.subtitle));
}

void SurfacePlot::DrawLines(QCPPainter& painter, const SurfaceScene& scene) const {
  for (const SceneLine& line : scene.walls) {
    painter.setPen(QPen(line.edge ? Mix(colours_.backdrop, colours_.text, 0.6) : colours_.grid, 1));
    painter.drawLine(QLineF(ToPoint(line.from), ToPoint(line.to)));
  }
}

QColor SurfacePlot::ColourOf(const SceneFace& face) const {
  switch (face.kind) {
    case SceneFace::Kind::Ground:
      return Mix(Qt::black, HeatColour(face.height), face.light);
    case SceneFace::Kind::Locked:
      return Mix(Qt::black, Mix(colours_.backdrop, colours_.text, kLockedShade), face.light);
    case SceneFace::Kind::Skirt:
      return Mix(colours_.backdrop, colours_.text, kSkirtShade * face.light);
  }
  return {};
}

void SurfacePlot::DrawFaces(QCPPainter& painter, const SurfaceScene& scene) const {
  const bool vectors = painter.modes().testFlag(QCPPainter::pmVectorized);
  for (const SceneFace& face : scene.faces) {
    std::array<QPointF, 4> corners;
    std::transform(face.corners.begin(), face.corners.end(), corners.begin(), ToPoint);
    const QColor colour = ColourOf(face);
    // Viewers of files smooth each edge by itself: a line of its own colour closes the seam to the
    // next face.
    painter.setPen(vectors ? QPen(colour, 1) : QPen(Qt::NoPen));
    painter.setBrush(colour);
    painter.setAntialiasing(vectors);
    painter.drawConvexPolygon(corners.data(), 4);
    painter.setAntialiasing(true);
    painter.setPen(QPen(Mix(colour, Qt::black, kMeshDarkness), 1));
    for (std::size_t i = 0; i < 4; ++i)
      if (face.lined[i]) painter.drawLine(QLineF(corners[i], corners[(i + 1) % 4]));
  }
}

void SurfacePlot::DrawLabels(QCPPainter& painter, const SurfaceScene& scene) const {
  painter.setPen(colours_.text);
  painter.setFont(digits_);
  for (const SceneLabel& label : scene.labels) {
    QRectF place(0, 0, 1000, 100);
    place.moveCenter(ToPoint(label.centre));
    painter.drawText(place, Qt::AlignCenter, ToQt(label.text));
  }
}

void SurfacePlot::DrawMark(QCPPainter& painter, int row, int column) const {
  const SceneRoom room = Room();
  const auto mark = MarkOf(surface_, room, row, column);
  if (!mark) return;
  const QPointF at = ToPoint(mark->at);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colours_.text, 1, Qt::DotLine));
  painter.drawLine(QLineF(at, ToPoint(mark->floor)));
  // A light line under a dark one is seen on every colour.
  for (const QPen& pen : {QPen(colours_.backdrop, 4), QPen(colours_.text, 2)}) {
    painter.setPen(pen);
    painter.drawEllipse(at, room.line * kRingSize, room.line * kRingSize);
  }
}

SurfaceMark::SurfaceMark(QCustomPlot& plot, const SurfacePlot& surface)
    : QCPLayerable(&plot, "overlay"), surface_(surface) {}

void SurfaceMark::Select(int row, int column) {
  row_ = row;
  column_ = column;
}

}  // namespace tarnview
