#pragma once

#include "ui/Control.h"

namespace tarnview {

/// Raises Tick every Interval milliseconds while it is enabled. It has no place on the screen.
class Timer : public Control {
 public:
  Timer(Form& owner, std::string itsName, int interval)
      : Control(owner, std::move(itsName)), Interval(interval) {
    Enabled = false;
  }

  const int Interval;
  Event<> Tick;

  std::string_view Kind() const override { return "timer"; }
  void Describe(Object& facts) const override { facts.emplace_back("interval", Interval); }

 protected:
  /// A script's way to let it fire: "click".
  void Perform(const Action& action) override {
    if (action.verb != "click") return Control::Perform(action);
    Tick();
  }
};

}  // namespace tarnview
