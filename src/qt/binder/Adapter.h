#pragma once

#include <QObject>
#include <functional>
#include <type_traits>

#include "ui/Control.h"

namespace tarnview {

class Binder;

/// Shows one control in one widget or action, both ways.
///
/// A handler of a widget's signal is connected by OnUser and calls the control as its last act,
/// since the window, and this adapter with it, may be gone when that call returns. No guard against
/// echoes is needed: a refresh leaves alone what is shown already.
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

  /// Connects what the user does to a handler. It runs as an event of the user's: not within
  /// another, and with an end for its errors.
  template <class Sender, class Signal, class Handler>
  void OnUser(Sender& sender, Signal signal, Handler handler) {
    connect(&sender, signal, this,
            [this, handler](auto... told) { Run([handler, told...] { Tell(handler, told...); }); });
  }

  /// A second view with a text of its own in the form keeps it.
  bool keepsItsText_ = false;

 private:
  /// A handler takes all that the signal tells, or the first of it, or nothing.
  template <class Handler>
  static void Tell(const Handler& handler) {
    handler();
  }
  template <class Handler, class First, class... Rest>
  static void Tell(const Handler& handler, First first, Rest... rest) {
    if constexpr (std::is_invocable_v<const Handler&, First, Rest...>)
      handler(first, rest...);
    else if constexpr (std::is_invocable_v<const Handler&, First>)
      handler(first);
    else
      handler();
  }
  void Run(std::function<void()> event);

  Control& control_;
  QObject* const view_;
  Binder& binder_;
  unsigned dirty_ = 0;
};

}  // namespace tarnview
