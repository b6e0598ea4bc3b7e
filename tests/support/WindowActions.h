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

}  // namespace tarnview
