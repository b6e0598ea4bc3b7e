#pragma once

#include "ui/Control.h"

namespace tarnview {

class TextBox : public Control {
 public:
  TextBox(Form& owner, std::string itsName, std::string text = "", int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex), Text(std::move(text), [this] {
          Changed(What::Content);
          Change();
        }) {}

  Property<std::string> Text;
  Event<> Change;  ///< after each change of Text, by hand or from code
  bool MultiLine = false;
  Property<bool> ReadOnly = Shown(false);
  bool HoldsPath = false;  ///< its text is the platform's bytes and no Windows-1252

  /// LostFocus is the moment at which a window checks what was typed.
  std::string_view Kind() const override { return "text box"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override { facts.emplace_back("text", Text()); }

 protected:
  void Perform(const Action& action) override;
};

}  // namespace tarnview
