#pragma once

#include "ui/Control.h"

namespace tarnview {

class CommandButton : public Control {
 public:
  CommandButton(Form& owner, std::string itsName, std::string caption, int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex), Caption(Shown(std::move(caption))) {}

  Property<std::string> Caption;  ///< "&" stands before the letter that Alt presses
  Event<> Click;

  void Press() {
    if (Enabled) Click();
  }

  std::string_view Kind() const override { return "button"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override { facts.emplace_back("caption", Caption()); }

 protected:
  void Perform(const Action& action) override {
    if (action.verb != "click") return Control::Perform(action);
    Press();
  }
};

}  // namespace tarnview
