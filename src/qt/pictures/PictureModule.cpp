// The module tarnview-pictures.

#include <QApplication>

#include "cli/PictureMaker.h"
#include "qt/Remarks.h"
#include "qt/chart/PicturePainter.h"

namespace tarnview {
namespace {

/// Starts the toolkit without a screen, unless it runs already.
void StartToolkit() {
  if (QCoreApplication::instance()) return;
  SilenceRemarks();
  static char program[] = "tarnview-pictures", platform[] = "-platform", offscreen[] = "offscreen";
  static char* arguments[] = {program, platform, offscreen, nullptr};
  static int count = 3;
  static const QApplication application(count, arguments);
}

class QtPictureMaker : public PictureMaker {
 public:
  bool Draw(const ChartDescription& chart, const std::string& path, int width, int height,
            std::string& error) override {
    StartToolkit();
    return DrawPicture(chart, path, width, height, error);
  }
};

}  // namespace
}  // namespace tarnview

extern "C" Q_DECL_EXPORT tarnview::PictureMaker* TarnviewPictures() {
  static tarnview::QtPictureMaker maker;
  return &maker;
}
