#include "ui/Control.h"

#include "ui/Form.h"

namespace tarnview {

Control::Control(Form& owner, std::string itsName, int itsIndex)
    : form(owner),
      name(std::move(itsName)),
      index(itsIndex),
      Enabled(Shown(true, What::State)),
      Visible(Shown(true, What::State)),
      ToolTip(Shown(std::string(), What::State)) {
  form.Add(*this);
}

Control::~Control() { form.Remove(*this); }

std::string Control::FullName() const {
  if (index < 0) return name;
  return name + "(" + std::to_string(index) + ")";
}

Object Control::Facts() const {
  Object facts{{"enabled", Enabled()}, {"visible", Visible()}};
  Describe(facts);
  return facts;
}

void Control::Do(const Action& action) {
  if (!Enabled) throw CannotDo(FullName() + " is disabled");
  if (!Visible) throw CannotDo(FullName() + " is not on show");
  if (TakesFocus()) {
    SetFocus();
    // A field that keeps the focus, since what stands in it is refused, keeps the user too.
    if (form.ActiveControl() != this) return;
  }
  Perform(action);
}

void Control::Perform(const Action& action) {
  throw CannotDo(FullName() + " is a " + std::string(Kind()) + " and cannot do \"" + action.verb +
                 "\"");
}

void Control::SetFocus() { form.SetFocus(this); }

void Control::Changed(What what) const {
  for (const auto& watcher : watchers_) watcher(what);
}

}  // namespace tarnview
