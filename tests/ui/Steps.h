#pragma once

#include <functional>
#include <map>

#include "support/Table.h"
#include "support/WindowFacts.h"
#include "ui/Form.h"
#include "ui/RecordingHost.h"
#include "ui/Script.h"

namespace tarnview {

/// A window with one control under test, which notes its events. Rows tell of steps, "; " between
/// them: verbs of the control as a script has them, and those of the test's own.
class StepsTest : public testing::Test {
 protected:
  using Words = std::vector<std::string>;

  /// What was noted at the steps, " cannot" where one was refused, and then the state.
  void ExpectSteps(Control& control, const std::string& table, int line = __builtin_LINE(),
                   const char* source = __builtin_FILE()) {
    const auto tell = [&](const TableRow& row) {
      for (const std::string& step : SplitAt(row.All(), "; "))
        if (!step.empty()) Do(control, ParseScript(step)[0].words);
      return std::exchange(notes, "") + state();
    };
    ExpectTable(tell, table, source, line);
  }

  /// All that can be told of the window, but for what is usual.
  std::string Facts() const {
    const WindowFacts facts(form);
    std::string told;
    for (const auto& fact : facts.All())
      if (!WindowFacts::IsUsual(fact)) told += fact.first + "=" + fact.second + "; ";
    return told;
  }

  RecordingHost host;
  Form form{host, "frmSteps", ""};
  std::string notes;
  std::map<std::string, std::function<void(const Words&)>> verbs;
  std::function<std::string()> state = [] { return ""; };

 private:
  void Do(Control& control, const Words& words) try {
    const Words rest(words.begin() + 1, words.end());
    if (const auto own = verbs.find(words[0]); own != verbs.end()) return own->second(rest);
    control.Do({words[0], rest});
  } catch (const CannotDo&) {
    notes += " cannot";
  }
};

}  // namespace tarnview
