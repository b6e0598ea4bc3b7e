#pragma once

#include <optional>

#include "ui/Control.h"
#include "ui/Keys.h"

namespace tarnview {

/// An entry of a menu, a menu itself, or (with the caption "-") a rule between entries.
class MenuItem : public Control {
 public:
  MenuItem(Form& owner, std::string itsName, std::string caption, std::string shortcut = "",
           int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex),
        Caption(Shown(std::move(caption))),
        Checked(Shown(false)),
        Shortcut(std::move(shortcut)),
        keys_(ParseKeys(Shortcut)) {}

  Property<std::string> Caption;
  Property<bool> Checked;
  std::string Tag;
  /// "Ctrl+G"; empty for none.
  const std::string Shortcut;
  Event<> Click;

  bool AnswersTo(const KeyPress& key) const { return Enabled && keys_ && *keys_ == key; }

  std::string_view Kind() const override { return "menu item"; }
  void Describe(Object& facts) const override {
    facts.emplace_back("caption", Caption());
    facts.emplace_back("checked", Checked());
  }

 protected:
  void Perform(const Action& action) override {
    if (action.verb != "click") return Control::Perform(action);
    Click();
  }

 private:
  std::optional<KeyPress> keys_;
};

}  // namespace tarnview
