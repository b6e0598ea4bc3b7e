#pragma once

#include "ui/Control.h"
#include "ui/Form.h"

namespace tarnview {

/// One choice of several: of the option buttons of a window that stand in one frame, at most one is
/// on.
class OptionButton : public Control {
 public:
  /// `itsFrame` is the name of the frame that holds the choices.
  OptionButton(Form& owner, std::string itsName, std::string itsFrame, std::string caption,
               int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex),
        frame(std::move(itsFrame)),
        Caption(Shown(std::move(caption))),
        Value(false, [this] { ValueChanged(); }) {}

  const std::string frame;
  Property<std::string> Caption;
  Property<bool> Value;
  Event<> Click;  ///< after it came on, by hand or from code

  std::string_view Kind() const override { return "option button"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override {
    facts.emplace_back("caption", Caption());
    facts.emplace_back("checked", Value());
  }

 protected:
  void Perform(const Action& action) override {
    if (action.verb != "click") return Control::Perform(action);
    Value = true;
  }

 private:
  void ValueChanged() {
    Changed(What::Content);
    if (!Value) return;
    for (Control* control : form.Controls())
      if (auto* other = dynamic_cast<OptionButton*>(control);
          other && other != this && other->frame == frame)
        other->Value = false;
    Click();
  }
};

}  // namespace tarnview
