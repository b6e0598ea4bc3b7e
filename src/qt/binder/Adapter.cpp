#include "qt/binder/Adapter.h"

#include <QAction>
#include <QPointer>
#include <QVariant>
#include <QWidget>
#include <utility>

#include "qt/Text.h"
#include "qt/binder/Binder.h"
#include "ui/Form.h"

namespace tarnview {
namespace {

constexpr unsigned Bit(What what) { return 1u << static_cast<unsigned>(what); }

template <class View>
void ShowCommonState(View& view, const Control& control) {
  view.setEnabled(control.Enabled);
  if (!control.ToolTip->empty()) view.setToolTip(TipToQt(control.ToolTip));
  view.setVisible(control.Visible);
}

}  // namespace

Adapter::Adapter(Control& control, QObject* view, Binder& binder)
    : control_(control), view_(view), binder_(binder) {
  if (!view || !IsSecondView()) return;
  const QString text = view->property("text").toString();
  keepsItsText_ = !text.isEmpty();
}

void Adapter::Run(std::function<void()> event) {
  Form& form = control_.form;
  form.host.events.RunWhenFree(form.name, control_.FullName(),
                               [self = QPointer<Adapter>(this), event = std::move(event)] {
                                 if (self) event();
                               });
}

bool Adapter::IsSecondView() const { return view_->dynamicPropertyNames().contains("control"); }

void Adapter::MarkDirty(What what) {
  dirty_ |= Bit(what);
  binder_.Queue(*this);
}

void Adapter::MarkAllDirty() {
  for (What what : {What::State, What::Content, What::Selection}) MarkDirty(what);
}

void Adapter::Refresh() {
  const unsigned dirty = std::exchange(dirty_, 0u);
  if (dirty & Bit(What::Content)) ShowContent();
  if (dirty & Bit(What::State)) ShowState();
  if (dirty & Bit(What::Selection)) ShowSelection();
  if (dirty & Bit(What::Focus)) ShowFocus();
}

void Adapter::ShowState() {
  if (auto* widget = qobject_cast<QWidget*>(view_))
    ShowCommonState(*widget, control_);
  else if (auto* action = qobject_cast<QAction*>(view_))
    ShowCommonState(*action, control_);
}

void Adapter::ShowFocus() {
  auto* widget = qobject_cast<QWidget*>(view_);
  if (widget && !IsSecondView() && control_.form.ActiveControl() == &control_ &&
      !widget->hasFocus())
    // As by Tab: the text of a field is selected, for a user who types another.
    widget->setFocus(Qt::TabFocusReason);
}

}  // namespace tarnview
