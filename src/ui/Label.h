#pragma once

#include "ui/Control.h"

namespace tarnview {

class Label : public Control {
 public:
  Label(Form& owner, std::string itsName, std::string caption = "", int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex), Caption(Shown(std::move(caption))) {}

  Property<std::string> Caption;

  std::string_view Kind() const override { return "label"; }
  void Describe(Object& facts) const override { facts.emplace_back("caption", Caption()); }
};

}  // namespace tarnview
