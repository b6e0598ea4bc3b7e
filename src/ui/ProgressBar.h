#pragma once

#include "ui/Control.h"

namespace tarnview {

class ProgressBar : public Control {
 public:
  ProgressBar(Form& owner, std::string itsName)
      : Control(owner, std::move(itsName)), Value(Shown(0L)), Max(Shown(100L)) {}

  Property<long> Value;
  Property<long> Max;

  std::string_view Kind() const override { return "progress bar"; }
  void Describe(Object& facts) const override { facts.emplace_back("value", Value()); }
};

}  // namespace tarnview
