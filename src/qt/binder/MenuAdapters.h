#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QMenu>

#include "qt/binder/Adapter.h"
#include "ui/MenuItem.h"

namespace tarnview {

class MenuActionAdapter : public Adapter {
 public:
  MenuActionAdapter(MenuItem& item, QAction& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  MenuItem& item_;
  QAction& view_;
};

/// An entry that holds other entries.
class MenuAdapter : public Adapter {
 public:
  MenuAdapter(MenuItem& item, QMenu& view, Binder& binder);

 protected:
  void ShowState() override;
  void ShowContent() override;

 private:
  MenuItem& item_;
  QMenu& view_;
};

/// An entry's second view as a button.
class MenuButtonAdapter : public Adapter {
 public:
  MenuButtonAdapter(MenuItem& item, QAbstractButton& view, Binder& binder);

 protected:
  void ShowContent() override;

 private:
  MenuItem& item_;
  QAbstractButton& view_;
};

}  // namespace tarnview
