#pragma once

#include <QPointer>

#include "qt/binder/Adapter.h"
#include "qt/binder/GridWidget.h"

namespace tarnview {

class GridAdapter : public Adapter {
 public:
  GridAdapter(Grid& grid, GridWidget& view, Binder& binder);
  ~GridAdapter() override;

 protected:
  void ShowContent() override;
  void ShowSelection() override;
  void ShowFocus() override;

 private:
  Grid& grid_;
  QPointer<GridWidget> view_;
  bool typed_ = false;  ///< the field opens with the first character of what is being typed
};

}  // namespace tarnview
