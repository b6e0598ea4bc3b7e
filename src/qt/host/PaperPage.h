#pragma once

#include <QSize>
#include <functional>

#include "ui/Page.h"

class QCPPainter;
class QPagedPaintDevice;

namespace tarnview {

/// How large a chart is in its window, in pixels.
using SizeOfChart = std::function<QSize(const Chart&)>;

/// A sheet of a printer.
class PaperPage : public Page {
 public:
  /// `painter` draws on `paper`, the whole sheet. It is set to twips.
  PaperPage(QCPPainter& painter, const QPagedPaintDevice& paper, SizeOfChart sizeOf);

  double Width() const override { return width_; }
  double Height() const override { return height_; }
  double TextWidth(const std::string& text, int points) const override;
  double LineHeight(int points) const override;
  double ShapeOf(const Chart& chart) const override;
  void DrawText(const std::string& text, int points, double left, double top) override;
  void DrawPicture(const Chart& chart, const PageRect& place) override;

 private:
  QCPPainter& painter_;
  SizeOfChart sizeOf_;
  double width_, height_;
};

}  // namespace tarnview
