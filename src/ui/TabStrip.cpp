#include "ui/TabStrip.h"

#include <algorithm>

#include "ui/ComboBox.h"
#include "ui/Frame.h"

namespace tarnview {
namespace {

/// "&General" is written as "General".
std::string WithoutMnemonic(std::string caption) {
  std::erase(caption, '&');
  return caption;
}

}  // namespace

void TabStrip::SetTabs(std::vector<Tab> tabs) {
  for (const Tab& tab : tabs_)
    if (tab.page) tab.page->Visible = false;
  tabs_ = std::move(tabs);
  if (tabs_.empty())
    selected_ = 0;
  else
    selected_ = 1;
  ShowPages();
}

void TabStrip::Select(int tab) {
  if (tab < 1 || tab > static_cast<int>(tabs_.size()) || tab == selected_) return;
  selected_ = tab;
  ShowPages();
  Click();
}

void TabStrip::ShowPages() {
  for (std::size_t i = 0; i < tabs_.size(); ++i)
    if (tabs_[i].page) tabs_[i].page->Visible = static_cast<int>(i) + 1 == selected_;
  Changed(What::Content);
}

void TabStrip::Describe(Object& facts) const {
  List captions;
  for (const Tab& tab : tabs_) captions.emplace_back(tab.caption);
  facts.emplace_back("list", std::move(captions));
  facts.emplace_back("selected", selected_ - 1);
  std::string shown;
  if (selected_ > 0) shown = tabs_[static_cast<std::size_t>(selected_ - 1)].caption;
  facts.emplace_back("text", std::move(shown));
}

void TabStrip::Perform(const Action& action) {
  if (action.verb != "tab") return Control::Perform(action);
  std::vector<std::string> captions;
  for (const Tab& tab : tabs_) captions.push_back(WithoutMnemonic(tab.caption));
  Select(EntryOf(captions, {action.verb, {WithoutMnemonic(action.Word(0))}}) + 1);
}

}  // namespace tarnview
