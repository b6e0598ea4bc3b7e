#include "qt/binder/MenuAdapters.h"

#include "qt/Text.h"

namespace tarnview {

MenuActionAdapter::MenuActionAdapter(MenuItem& item, QAction& view, Binder& binder)
    : Adapter(item, &view, binder), item_(item), view_(view) {
  // One action alone may own a shortcut.
  if (!IsSecondView() && !item.Shortcut.empty())
    view.setShortcut(QKeySequence(ToQt(item.Shortcut)));
  OnUser(view, &QAction::triggered, [this] {
    // The toolkit has ticked a checkable entry by itself; the window decides.
    MarkDirty(What::Content);
    if (item_.Enabled) item_.Click();
  });
}

void MenuActionAdapter::ShowContent() {
  const bool rule = item_.Caption() == "-";
  if (!keepsItsText_) view_.setText(rule ? QString() : ShownToQt(item_.Caption));
  view_.setSeparator(rule);
  if (item_.Checked) view_.setCheckable(true);
  view_.setChecked(item_.Checked);
}

MenuAdapter::MenuAdapter(MenuItem& item, QMenu& view, Binder& binder)
    : Adapter(item, &view, binder), item_(item), view_(view) {
  // An entry with a tip of its own (the whole path of a recent file) shows it.
  view.setToolTipsVisible(true);
}

void MenuAdapter::ShowState() {
  view_.menuAction()->setEnabled(item_.Enabled);
  view_.menuAction()->setVisible(item_.Visible);
}

void MenuAdapter::ShowContent() { view_.setTitle(ShownToQt(item_.Caption)); }

MenuButtonAdapter::MenuButtonAdapter(MenuItem& item, QAbstractButton& view, Binder& binder)
    : Adapter(item, &view, binder), item_(item), view_(view) {
  OnUser(view, &QAbstractButton::clicked, [this] {
    if (item_.Enabled) item_.Click();
  });
}

void MenuButtonAdapter::ShowContent() {
  if (!keepsItsText_) view_.setText(ShownToQt(item_.Caption));
}

}  // namespace tarnview
