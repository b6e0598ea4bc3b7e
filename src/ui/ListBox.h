#pragma once

#include <utility>
#include <vector>

#include "ui/ComboBox.h"
#include "ui/Control.h"

namespace tarnview {

/// A list of texts of which one may be selected.
class ListBox : public Control {
 public:
  ListBox(Form& owner, std::string itsName, int itsIndex = -1)
      : Control(owner, std::move(itsName), itsIndex), ListIndex(-1, [this] {
          Changed(What::Selection);
          Click();
        }) {}

  Property<int> ListIndex;  ///< from 0; -1 for none
  Event<> Click;            ///< after each change of ListIndex, by hand or from code

  /// Nothing is selected then.
  void SetList(std::vector<std::string> entries) {
    ListIndex = -1;
    entries_ = std::move(entries);
    Changed(What::Content);
  }
  const std::vector<std::string>& Entries() const { return entries_; }

  std::string_view Kind() const override { return "list box"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override {
    const auto selected = static_cast<std::size_t>(ListIndex());
    facts.emplace_back("list", MakeList(entries_));
    facts.emplace_back("selected", ListIndex());
    facts.emplace_back("text", selected < entries_.size() ? entries_[selected] : std::string());
  }

 protected:
  void Perform(const Action& action) override {
    if (action.verb != "choose") return Control::Perform(action);
    ListIndex = EntryOf(entries_, action);
  }

 private:
  std::vector<std::string> entries_;
};

}  // namespace tarnview
