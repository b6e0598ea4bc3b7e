#include "qt/binder/ButtonAdapters.h"

#include <QPushButton>
#include <QSignalBlocker>

#include "qt/Text.h"
#include "ui/Form.h"

namespace tarnview {

CommandButtonAdapter::CommandButtonAdapter(CommandButton& button, QAbstractButton& view,
                                           Binder& binder)
    : Adapter(button, &view, binder), button_(button), view_(view) {
  if (auto* push = qobject_cast<QPushButton*>(&view)) {
    // The form says which button Enter presses, whatever has the focus.
    push->setAutoDefault(false);
    push->setDefault(button.form.DefaultButton == &button);
  }
  OnUser(view, &QAbstractButton::clicked, [this] { button_.Press(); });
}

void CommandButtonAdapter::ShowContent() {
  if (!keepsItsText_) view_.setText(ToQt(button_.Caption));
}

CommandActionAdapter::CommandActionAdapter(CommandButton& button, QAction& view, Binder& binder)
    : Adapter(button, &view, binder), button_(button), view_(view) {
  OnUser(view, &QAction::triggered, [this] { button_.Press(); });
}

void CommandActionAdapter::ShowContent() {
  if (!keepsItsText_) view_.setText(ToQt(button_.Caption));
}

CheckBoxAdapter::CheckBoxAdapter(CheckBox& box, QCheckBox& view, Binder& binder)
    : Adapter(box, &view, binder), box_(box), view_(view) {
  OnUser(view, &QCheckBox::clicked, [this](bool checked) {
    MarkDirty(What::Content);
    box_.Value = checked;
  });
}

/// Blanks at the ends of a caption made room for a box that stood in it, and would only indent it.
void CheckBoxAdapter::ShowContent() {
  view_.setText(ToQt(box_.Caption).trimmed());
  view_.setChecked(box_.Value);
}

OptionButtonAdapter::OptionButtonAdapter(OptionButton& button, QRadioButton& view, Binder& binder)
    : Adapter(button, &view, binder), button_(button), view_(view) {
  // Toggled, since an arrow key chooses, too.
  OnUser(view, &QRadioButton::toggled, [this](bool on) {
    MarkDirty(What::Content);
    if (on) button_.Value = true;
  });
}

void OptionButtonAdapter::ShowContent() {
  view_.setText(ToQt(button_.Caption));
  const QSignalBlocker quiet(view_);
  // An exclusive button that is on cannot be put out.
  view_.setAutoExclusive(false);
  view_.setChecked(button_.Value);
  view_.setAutoExclusive(true);
}

UpDownAdapter::UpDownAdapter(UpDown& arrows, UpDownWidget& view, Binder& binder)
    : Adapter(arrows, &view, binder) {
  OnUser(view, &UpDownWidget::Up, [&arrows] { arrows.UpClick(); });
  OnUser(view, &UpDownWidget::Down, [&arrows] { arrows.DownClick(); });
}

}  // namespace tarnview
