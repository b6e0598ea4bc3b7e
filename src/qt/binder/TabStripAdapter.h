#pragma once

#include <QTabWidget>

#include "qt/binder/Adapter.h"
#include "ui/TabStrip.h"

namespace tarnview {

/// The pages of the widget are known by their names: a tab without its page in the strip is not
/// shown.
class TabStripAdapter : public Adapter {
 public:
  TabStripAdapter(TabStrip& tabs, QTabWidget& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  /// The strip's tab on this page of the widget, from 1; 0 for none.
  int TabOf(int page) const;

  TabStrip& tabs_;
  QTabWidget& view_;
};

}  // namespace tarnview
