#pragma once

#include "ui/Control.h"

namespace tarnview {

/// A group of controls with a caption, or a place for a picture.
class Frame : public Control {
 public:
  Frame(Form& owner, std::string itsName, std::string caption = "", int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex),
        Caption(Shown(std::move(caption))),
        BackgroundPicture(Shown(std::string())) {}

  Property<std::string> Caption;
  Property<std::string>
      BackgroundPicture;  ///< path of a picture behind what it holds; empty for none

  std::string_view Kind() const override { return "frame"; }
  void Describe(Object& facts) const override { facts.emplace_back("caption", Caption()); }
};

}  // namespace tarnview
