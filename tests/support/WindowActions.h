#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Text.h"
#include "ui/Action.h"
#include "ui/Form.h"

namespace tarnview {

/// The control of that full name, "txtPath(3)"; nullptr if there is none.
inline Control* ControlOf(const Form& form, const std::string& name) {
  for (Control* control : form.Controls())
    if (control->FullName() == name) return control;
  return nullptr;
}

/// What a user does in a window: actions such as "type txtName Spool Up", one a line.
inline void Act(Form& form, const std::string& actions) {
  for (const std::string& line : Split(actions, '\n')) {
    const std::vector<std::string> words = Split(line, ' ');
    Action action{words[0], {}};
    const std::size_t front = words[0].size() + words[1].size() + 2;
    if (words.size() > 2) action.words.push_back(line.substr(front));
    if (words[0] == "tick")
      action.words = {line.substr(front, line.rfind(' ') - front), words.back()};
    Control* control = ControlOf(form, words[1]);
    ASSERT_TRUE(control) << line;
    control->Do(action);
  }
}

/// Of those names, apart by blanks, the controls that can be used.
inline std::string Enabled(const Form& form, const std::string& names) {
  std::string enabled;
  for (const std::string& name : Split(names, ' '))
    if (ControlOf(form, name)->Enabled()) enabled += name + " ";
  return enabled;
}

/// What the controls of those names hold (text, caption or entry), with "|" between.
inline std::string Texts(const Form& form, const std::string& names) {
  std::string texts;
  for (const std::string& name : Split(names, ' '))
    for (const auto& [fact, value] : ControlOf(form, name)->Facts())
      if (fact == "text" || fact == "caption") texts += "|" + std::get<std::string>(value.Get());
  return texts.substr(1);
}

}  // namespace tarnview
