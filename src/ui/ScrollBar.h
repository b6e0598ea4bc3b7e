#pragma once

#include <algorithm>

#include "ui/Control.h"

namespace tarnview {

class ScrollBar : public Control {
 public:
  ScrollBar(Form& owner, std::string itsName, bool vertical = false)
      : Control(owner, std::move(itsName)),
        Vertical(vertical),
        Min(Shown(0)),
        Max(Shown(32767)),
        SmallChange(Shown(1)),
        LargeChange(Shown(1)),
        Value(0, [this] {
          Changed(What::Content);
          Change();
        }) {}

  const bool Vertical;
  Property<int> Min;
  Property<int> Max;
  Property<int> SmallChange;
  Property<int> LargeChange;
  Property<int> Value;
  Event<> Change;  ///< after each change of Value, by hand (on release) or from code
  Event<> Scroll;  ///< the thumb is dragged and not yet let go; Value is that of the thumb

  std::string_view Kind() const override { return "scroll bar"; }
  void Describe(Object& facts) const override {
    facts.emplace_back("value", Value());
    facts.emplace_back("min", Min());
    facts.emplace_back("max", Max());
    facts.emplace_back("small", SmallChange());
    facts.emplace_back("large", LargeChange());
  }

 protected:
  void Perform(const Action& action) override {
    if (action.verb != "scroll") return Control::Perform(action);
    const auto [low, high] = std::minmax(Min(), Max());
    Value = std::clamp(action.Number(0), low, high);
  }
};

}  // namespace tarnview
