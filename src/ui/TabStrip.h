#pragma once

#include "ui/Control.h"

namespace tarnview {

class Frame;

/// Tabs of which one is in front. Each shows its page and hides those of the others; what stands on
/// a page that is not in view keeps its own state and can be worked.
class TabStrip : public Control {
 public:
  struct Tab {
    std::string caption;
    Frame* page = nullptr;  ///< none: the window does what the tab stands for
  };

  TabStrip(Form& owner, std::string itsName) : Control(owner, std::move(itsName)) {}

  Event<> Click;  ///< after another tab came to the front, by hand or from code

  /// The first is in front then; the pages of tabs that are gone are hidden.
  void SetTabs(std::vector<Tab> tabs);
  const std::vector<Tab>& Tabs() const { return tabs_; }
  /// From 1; 0 for none.
  int Selected() const { return selected_; }
  /// A number that no tab has changes nothing.
  void Select(int tab);

  std::string_view Kind() const override { return "tab strip"; }
  bool TakesFocus() const override { return true; }
  void Describe(Object& facts) const override;

 protected:
  void Perform(const Action& action) override;

 private:
  void ShowPages();

  std::vector<Tab> tabs_;
  int selected_ = 0;
};

}  // namespace tarnview
