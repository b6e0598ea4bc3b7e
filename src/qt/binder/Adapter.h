#pragma once

#include <QObject>

#include "ui/Control.h"

namespace tarnview {

class Binder;

/// Shows one control in one widget or action, both ways.
///
/// A handler of a widget's signal calls the control as its last act, since the window, and this adapter with it, may
/// be gone when that call returns. No guard against echoes is needed: a refresh leaves alone what is shown already.
class Adapter : public QObject {
 public:
  Adapter(Control& control, QObject* view, Binder& binder);

  Control& control() const { return control_; }
  QObject* view() const { return view_; }
  /// The view is a second one, which names its control by the property "control".
  bool IsSecondView() const;

  void MarkDirty(What what);
  void MarkAllDirty();
  /// Brings the view up to date with what has changed since the last call.
  void Refresh();

 protected:
  virtual void ShowState();  ///< enabled, visible, tool tip
  virtual void ShowContent() {}
  virtual void ShowSelection() {}
  virtual void ShowFocus();

  /// A second view with a text of its own in the form keeps it.
  bool keepsItsText_ = false;

 private:
  Control& control_;
  QObject* const view_;
  Binder& binder_;
  unsigned dirty_ = 0;
};

}  // namespace tarnview
