#pragma once

#include "qt/binder/Adapter.h"
#include "qt/binder/PictureWidget.h"
#include "ui/Picture.h"

namespace tarnview {

class PictureAdapter : public Adapter {
 public:
  PictureAdapter(Picture& picture, PictureWidget& view, Binder& binder)
      : Adapter(picture, &view, binder), picture_(picture), view_(view) {
    OnUser(view, &PictureWidget::Resized, [this] {
      const QSize size = view_.SizeInTwips();
      picture_.SetSize(size.width(), size.height());
    });
  }

 protected:
  void ShowContent() override { view_.Show(picture_.Shapes(), picture_.BackColour); }

 private:
  Picture& picture_;
  PictureWidget& view_;
};

}  // namespace tarnview
