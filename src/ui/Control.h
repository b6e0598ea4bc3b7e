#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Action.h"
#include "ui/Event.h"
#include "ui/Property.h"
#include "ui/Value.h"

namespace tarnview {

class Form;
struct KeyPress;

/// What about a control has changed, for the widget that shows it.
enum class What { State, Content, Selection, Focus };

/// A control of a window, without a toolkit. A kind of control adds its properties and events, how
/// it tells what it holds (Describe) and what a user can do to it (Perform); the toolkit's widget
/// watches it.
///
/// Setting a property from code raises the same event as a user's edit.
class Control {
 public:
  /// `index` from 0 for a member of a control array, else -1.
  Control(Form& form, std::string name, int index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form;
  const std::string name;
  const int index;

  Property<bool> Enabled;
  Property<bool> Visible;
  Property<std::string> ToolTip;

  Event<> GotFocus;
  Event<> LostFocus;
  /// A key that the window let through; set the flag to eat it.
  Event<const KeyPress&, bool&> KeyDown;

  virtual std::string_view Kind() const = 0;
  virtual bool TakesFocus() const { return false; }
  /// "txtFrom", "mnuRecentlyUsed(2)".
  std::string FullName() const;

  /// Adds what it holds to the facts that all controls share (enabled, visible).
  virtual void Describe(Object& facts) const = 0;
  Object Facts() const;

  /// Does what a user would do, unless the field that has the focus does not let it go; throws
  /// CannotDo.
  void Do(const Action& action);

  void SetFocus();

  /// The widget's way to hear of changes; several widgets may show one control.
  void Watch(std::function<void(What)> watcher) { watchers_.push_back(std::move(watcher)); }
  void Forget() { watchers_.clear(); }

 protected:
  virtual void Perform(const Action& action);
  /// A key that neither the window nor a handler took: true if this kind of control takes it.
  virtual bool TakesKey(const KeyPress&) { return false; }
  /// The same for a key that would write: with a toolkit, its own field does that.
  virtual bool WritesKey(const KeyPress&) { return false; }
  /// Before LostFocus.
  virtual void LeavesFocus() {}
  void Changed(What what) const;
  /// A Property of this control that is shown, and nothing more.
  template <class T>
  Property<T> Shown(T initial, What what = What::Content) {
    return Property<T>(std::move(initial), [this, what] { Changed(what); });
  }

 private:
  friend class Form;
  std::vector<std::function<void(What)>> watchers_;
};

}  // namespace tarnview
