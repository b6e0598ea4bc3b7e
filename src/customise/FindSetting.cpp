#include "customise/FindSetting.h"

#include <algorithm>

#include "base/Text.h"

namespace tarnview {
namespace {

std::string CaptionOf(const Control& control) {
  for (const auto& [name, value] : control.Facts())
    if (name == "caption")
      if (const auto* text = std::get_if<std::string>(&value.Get())) return *text;
  return "";
}

std::string Words(std::string text) {
  std::erase(text, '&');
  return Upper(text) + "\n";
}

}  // namespace

FindSetting::FindSetting(OptionsControls& window, const OptionFields& fields) : window_(window) {
  AddWords(fields);
  window_.txtFind.ToolTip = std::string("Type a word of a setting, and Enter goes to it");
  window_.txtFind.Change = [this] { ShowFound(); };
  window_.txtFind.LostFocus = [this] {
    if (!window_.IsUnloading() && !window_.ActiveControl()) GoToFound();
  };
  window_.txtFind.KeyDown = [this](const KeyPress& key, bool& eaten) {
    if (key != KeyPress{"Enter"} || !Find(window_.txtFind.Text())) return;
    GoToFound();
    eaten = true;
  };
}

/// A label's words are those of the control behind it; a page's are those of what stands between it
/// and the next.
void FindSetting::AddWords(const OptionFields& fields) {
  const auto& tabs = window_.tabOptions.Tabs();
  int page = 0;
  std::string label;
  for (Control* control : window_.Controls()) {
    for (std::size_t tab = 0; tab < tabs.size(); ++tab)
      if (tabs[tab].page == control) page = static_cast<int>(tab) + 1;
    if (control == &window_.cmdOK) break;
    if (control->Kind() == "label") label = Words(CaptionOf(*control));
    if (page == 0 || !control->TakesFocus()) continue;
    places_.push_back(
        {control, page, label + Words(CaptionOf(*control)) + Words(control->ToolTip())});
    label.clear();
  }
  for (const OptionFields::Field& field : fields.All()) {
    auto place = std::find_if(places_.begin(), places_.end(),
                              [&](const Place& p) { return p.control == field.control; });
    if (place == places_.end()) {
      // A path: the row knows its page.
      const std::string window = field.row.setIn.window;
      const auto tab = std::find_if(tabs.begin(), tabs.end(), [&](const auto& t) {
        return window.ends_with("/" + t.caption);
      });
      const int its = static_cast<int>(tab - tabs.begin()) + 1;
      places_.push_back({field.control, its,
                         Words(CaptionOf(window_.lblPath(field.control->index))) +
                             Words(field.control->ToolTip())});
      place = places_.end() - 1;
    }
    place->words += Words(field.row.key);
  }
}

const FindSetting::Place* FindSetting::Find(const std::string& text) const {
  const std::string wanted = Upper(Trim(text));
  if (wanted.empty()) return nullptr;
  const auto found = std::find_if(places_.begin(), places_.end(), [&](const Place& place) {
    return place.words.find(wanted) != std::string::npos;
  });
  if (found == places_.end()) return nullptr;
  return &*found;
}

void FindSetting::ShowFound() {
  if (const Place* place = Find(window_.txtFind.Text())) window_.tabOptions.Select(place->page);
}

void FindSetting::GoToFound() {
  const Place* place = Find(window_.txtFind.Text());
  if (!place) return;
  window_.tabOptions.Select(place->page);
  place->control->SetFocus();
}

}  // namespace tarnview
