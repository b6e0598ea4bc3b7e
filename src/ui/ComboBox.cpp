#include "ui/ComboBox.h"

#include <algorithm>
#include <charconv>

#include "ui/Form.h"

namespace tarnview {

ComboBox::ComboBox(Form& owner, std::string itsName, bool editable, int itsIndex)
    : Control(owner, std::move(itsName), itsIndex), Editable(editable), Text("", [this] {
        Changed(What::Content);
        Change();
      }) {}

void ComboBox::SetList(std::vector<std::string> entries) {
  entries_ = std::move(entries);
  Changed(What::Content);
}

int ComboBox::ListIndex() const {
  if (chosen_ < entries_.size() && entries_[chosen_] == Text()) return static_cast<int>(chosen_);
  const auto found = std::find(entries_.begin(), entries_.end(), Text());
  if (found == entries_.end()) return -1;
  return static_cast<int>(found - entries_.begin());
}

void ComboBox::SetListIndex(int entry) {
  const bool inside = entry >= 0 && entry < static_cast<int>(entries_.size());
  const std::string before = Text;
  const int entryBefore = ListIndex();
  chosen_ = static_cast<std::size_t>(std::max(entry, 0));
  if (inside)
    Text = entries_[chosen_];
  else
    Text = std::string();
  if (Text() != before || ListIndex() != entryBefore) Click();
}

bool ComboBox::Choose(const std::string& text) {
  const auto found = std::find(entries_.begin(), entries_.end(), text);
  if (found == entries_.end()) return false;
  SetListIndex(static_cast<int>(found - entries_.begin()));
  return true;
}

void ComboBox::Describe(Object& facts) const {
  facts.emplace_back("list", MakeList(entries_));
  facts.emplace_back("selected", ListIndex());
  facts.emplace_back("text", Text());
}

void ComboBox::Perform(const Action& action) {
  if (action.verb == "choose") {
    SetListIndex(EntryOf(entries_, action));
  } else if (action.verb == "type" && Editable) {
    Text = action.Word(0);
    form.SetFocus(nullptr);
  } else {
    Control::Perform(action);
  }
}

int EntryOf(const std::vector<std::string>& entries, const Action& action) {
  const std::string& word = action.Word(0);
  const auto found = std::find(entries.begin(), entries.end(), word);
  if (found != entries.end()) return static_cast<int>(found - entries.begin());
  if (word.starts_with('#')) {
    const int entry = Action{action.verb, {word.substr(1)}}.Number(0);
    if (entry >= 0 && entry < static_cast<int>(entries.size())) return entry;
  }
  throw CannotDo("no entry \"" + word + "\"");
}

}  // namespace tarnview
