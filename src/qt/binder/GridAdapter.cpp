#include "qt/binder/GridAdapter.h"

#include <utility>

#include "qt/Text.h"

namespace tarnview {

GridAdapter::GridAdapter(Grid& grid, GridWidget& view, Binder& binder)
    : Adapter(grid, &view, binder), grid_(grid), view_(&view) {
  view.SetGrid(&grid);
  OnUser(view, &GridWidget::Clicked, [this](GridPlace cell) { grid_.UserClicks(cell); });
  OnUser(view, &GridWidget::Extended, [this](GridPlace cell) { grid_.UserExtends(cell); });
  OnUser(view, &GridWidget::DoubleClicked,
         [this](GridPlace cell) { grid_.UserDoubleClicks(cell); });
  OnUser(view, &GridWidget::RightClicked, [this](GridPlace cell) { grid_.UserRightClicks(cell); });
  OnUser(view, &GridWidget::FieldEdited,
         [this](const QString& text) { grid_.SetEditText(FromQt(text)); });
  OnUser(view, &GridWidget::Stepped, [this](int by) { grid_.StepEdit(by); });
  OnUser(view, &GridWidget::Typed, [this](const QString& text) {
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
