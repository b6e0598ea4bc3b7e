#pragma once

#include <string>
#include <vector>

#include "customise/OptionFields.h"
#include "customise/OptionsControls.h"

namespace tarnview {

/// "Find a Setting": goes to the page and the control whose caption, key or tool tip holds a text,
/// in any case.
class FindSetting {
 public:
  FindSetting(OptionsControls& window, const OptionFields& fields);

 private:
  struct Place {
    Control* control;
    int page;           ///< of tabOptions, from 1
    std::string words;  ///< in capitals
  };

  void AddWords(const OptionFields& fields);
  const Place* Find(const std::string& text) const;
  void ShowFound();
  void GoToFound();

  OptionsControls& window_;
  std::vector<Place> places_;
};

}  // namespace tarnview
