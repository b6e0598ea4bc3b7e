#include "qt/binder/GridAdapter.h"

#include <utility>

#include "qt/Text.h"

namespace tarnview {

GridAdapter::GridAdapter(Grid& grid, GridWidget& view, Binder& binder)
    : Adapter(grid, &view, binder), grid_(grid), view_(&view) {
  view.SetGrid(&grid);
  connect(&view, &GridWidget::Clicked, this, [this](GridPlace cell) { grid_.UserClicks(cell); });
  connect(&view, &GridWidget::Extended, this, [this](GridPlace cell) { grid_.UserExtends(cell); });
  connect(&view, &GridWidget::DoubleClicked, this, [this](GridPlace cell) { grid_.UserDoubleClicks(cell); });
  connect(&view, &GridWidget::RightClicked, this, [this](GridPlace cell) { grid_.UserRightClicks(cell); });
  connect(&view, &GridWidget::FieldEdited, this, [this](const QString& text) { grid_.SetEditText(FromQt(text)); });
  connect(&view, &GridWidget::Stepped, this, [this](int by) { grid_.StepEdit(by); });
  connect(&view, &GridWidget::Typed, this, [this](const QString& text) {
    if (!grid_.BeginEdit("")) return;
    typed_ = true;
    grid_.SetEditText(FromQt(text));
  });
}

/// The widget may be drawn once more after its grid is gone.
GridAdapter::~GridAdapter() {
  if (view_) view_->SetGrid(nullptr);
}

void GridAdapter::ShowContent() { view_->ContentChanged(); }

void GridAdapter::ShowSelection() {
  view_->ShowField(!std::exchange(typed_, false));
  view_->update();
}

/// The field of an edited cell has the focus for the grid.
void GridAdapter::ShowFocus() {
  if (!grid_.IsEditing()) Adapter::ShowFocus();
}

}  // namespace tarnview
