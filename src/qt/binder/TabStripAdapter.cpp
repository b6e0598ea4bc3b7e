#include "qt/binder/TabStripAdapter.h"

#include <QSignalBlocker>

#include "qt/Text.h"
#include "qt/binder/Binder.h"
#include "ui/Frame.h"

namespace tarnview {

TabStripAdapter::TabStripAdapter(TabStrip& tabs, QTabWidget& view, Binder& binder)
    : Adapter(tabs, &view, binder), tabs_(tabs), view_(view) {
  OnUser(view, &QTabWidget::currentChanged, [this](int page) {
    if (const int tab = TabOf(page)) tabs_.Select(tab);
  });
}

int TabStripAdapter::TabOf(int page) const {
  if (page < 0) return 0;
  const std::string name = view_.widget(page)->objectName().toStdString();
  for (std::size_t i = 0; i < tabs_.Tabs().size(); ++i)
    if (const Frame* frame = tabs_.Tabs()[i].page; frame && ViewName(*frame) == name)
      return static_cast<int>(i) + 1;
  return 0;
}

void TabStripAdapter::ShowContent() {
  const QSignalBlocker quiet(view_);
  for (int page = 0; page < view_.count(); ++page) {
    const int tab = TabOf(page);
    view_.setTabVisible(page, tab > 0);
    if (tab == 0) continue;
    view_.setTabText(page, ToQt(tabs_.Tabs()[static_cast<std::size_t>(tab - 1)].caption));
    if (tab != tabs_.Selected()) continue;
    view_.setCurrentIndex(page);
    // Where its frame was shown first, the strip's own layout has missed it.
    QWidget& shown = *view_.widget(page);
    shown.setGeometry(shown.parentWidget()->rect());
  }
}

}  // namespace tarnview
