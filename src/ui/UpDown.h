#pragma once

#include <algorithm>

#include "ui/Control.h"

namespace tarnview {

/// A pair of small arrows. Its window moves the number of the field beside it on UpClick and
/// DownClick.
class UpDown : public Control {
 public:
  UpDown(Form& owner, std::string itsName, int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex) {}

  int Min = 0;
  int Max = 10;
  int Increment = 1;
  Event<> UpClick;
  Event<> DownClick;

  std::string_view Kind() const override { return "up-down control"; }
  void Describe(Object& facts) const override {
    facts.emplace_back("min", Min);
    facts.emplace_back("max", Max);
  }

 protected:
  void Perform(const Action& action) override {
    if (action.verb != "step") return Control::Perform(action);
    if (action.Word(0) == "up")
      UpClick();
    else if (action.Word(0) == "down")
      DownClick();
    else
      throw CannotDo("a step is \"up\" or \"down\"");
  }
};

}  // namespace tarnview
