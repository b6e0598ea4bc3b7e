#pragma once

#include "ui/Control.h"

namespace tarnview {

class CheckBox : public Control {
 public:
  CheckBox(Form& owner, std::string itsName, std::string caption, int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex),
        Caption(Shown(std::move(caption))),
        Value(false, [this] {
          Changed(What::Content);
          Click();
        }) {}

  Property<std::string> Caption;
  Property<bool> Value;
  Event<> Click;  ///< after each change of Value, by hand or from code

  std::string_view Kind() const override { return "check box"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override {
    facts.emplace_back("caption", Caption());
    facts.emplace_back("checked", Value());
  }

 protected:
  void Perform(const Action& action) override {
    if (action.verb != "click") return Control::Perform(action);
    Value = !Value();
  }
};

}  // namespace tarnview
