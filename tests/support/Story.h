#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "support/StoryFile.h"
#include "support/WindowFacts.h"
#include "ui/ComboBox.h"
#include "ui/Script.h"
#include "ui/ScriptUser.h"
#include "ui/TextBox.h"

namespace tarnview {

/// What a user does, a line a time, and behind " -> " all that has changed by it on the desktop:
///
///     type txtWeight 80; click cmdDraw -> staFoot[1]=Done, cmdSave on
///
/// Steps are those of a script (ui/ScriptUser), "show NAME..." (what a control holds, changed or
/// not), "write NAME TEXT" (as type, but the field is not left), and verbs of the test's own. While
/// a modal window is open the lines go on in it.
class Story {
 public:
  explicit Story(RecordingHost& host) : host_(host), user_(host) {
    host_.work = [this](const Form& form) {
      while (form.IsShown() && Step()) {
      }
    };
  }
  /// A verb of the test's own, with the words behind it.
  using Words = ScriptUser::Words;
  void Verb(const std::string& name, std::function<void(const Words&)> run) { verbs_[name] = run; }
  /// One more thing that is looked at after each line.
  void Fact(const std::string& name, std::function<std::string()> tell) {
    facts_.emplace_back(name, tell);
  }
  /// What may happen at a line, such as a file written: told where it is not empty.
  void Event(const std::string& name, std::function<std::string()> take) {
    events_.emplace_back(name, take);
  }
  /// Leaves out what changes at every step: facts with that in their names.
  void PassOver(const std::string& part) { passedOver_.push_back(part); }

  int expected = 0;  ///< how many of the test's stories

  /// Does the story again, whatever it says behind the arrows, and tells what came of it.
  std::string Play(const std::string& story) {
    lines_ = Split(story, '\n');
    next_ = 0;
    told_.clear();
    boxes_ = host_.boxes.size();
    before_ = Look();
    for (const auto& [name, take] : events_) take();
    while (Step()) {
    }
    return told_;
  }

 private:
  /// Does the next line; false at the end.
  bool Step() {
    if (next_ > 0) Tell();
    if (next_ == lines_.size()) return false;
    const std::string& line = lines_[next_];
    const std::string steps = line.substr(0, line.find(" -> "));
    told_ += (next_ > 0 ? "\n" : "") + steps;
    ++next_;
    if (steps.starts_with('#')) return true;
    for (std::size_t at = 0; at < steps.size();) {
      const std::size_t end = std::min(steps.find("; ", at), steps.size());
      Do(steps.substr(at, end - at));
      at = end + 2;
    }
    return true;
  }
  void Do(const std::string& step) {
    try {
      for (const ScriptLine& line : ParseScript(step)) Do(line.words);
    } catch (const CannotDo& error) {
      shown_.push_back(std::string("cannot: ") + error.what());
    }
  }
  void Do(const Words& words) {
    const Words rest(words.begin() + 1, words.end());
    if (const auto own = verbs_.find(words[0]); own != verbs_.end()) return own->second(rest);
    if (words[0] == "show") return Show(rest);
    if (words[0] == "write") return Write(rest);
    if (words[0] == "key") return Press(rest);
    host_.events.Run("Story", words[0], [&] {
      if (!user_.Do(words)) user_.Work(words);
    });
  }
  /// Goes to a field and writes in it, without leaving it.
  void Write(const Words& words) {
    Control& field = user_.FindControl(WordAt(words, 0));
    field.SetFocus();
    if (auto* combo = dynamic_cast<ComboBox*>(&field))
      combo->Text = WordAt(words, 1);
    else
      dynamic_cast<TextBox&>(field).Text = WordAt(words, 1);
  }
  /// A key; told where nothing takes it.
  void Press(const Words& words) {
    const auto key = ParseKeys(WordAt(words, 0));
    if (!key) throw CannotDo("no key " + words[0]);
    bool taken = false;
    host_.events.Run("Story", words[0], [&] { taken = user_.Active().Press(*key); });
    if (!taken) shown_.push_back("not taken");
  }
  /// Facts of the front window whose names begin so: "txtName", "lvwTags[2]", "focus".
  void Show(const Words& names) {
    const Form& form = user_.Active();
    const WindowFacts facts(form);
    for (const std::string& name : names) {
      if (name == "focus") shown_.push_back("focus " + Focus(form));
      for (const WindowFacts::Fact& fact : facts.All())
        if (IsOf(fact.first, name) && !WindowFacts::IsUsual(fact))
          shown_.push_back(Told(fact.first, fact.second));
    }
  }
  static std::string Focus(const Form& form) {
    return form.ActiveControl() ? form.ActiveControl()->FullName() : "nowhere";
  }
  static bool IsOf(const std::string& fact, const std::string& name) {
    return fact.starts_with(name) &&
           (fact.size() == name.size() || fact[name.size()] == ' ' || fact[name.size()] == '[');
  }

  /// All that stands on the desktop, by the name that a script gives it.
  using Facts = std::vector<WindowFacts::Fact>;
  struct Sight {
    std::vector<std::string> windows;
    std::map<std::string, Facts> facts;  ///< of each, and of the desktop under ""
  };
  Sight Look() const {
    Sight sight;
    std::map<std::string, int> seen;
    for (const Form* form : host_.open) {
      const int number = ++seen[form->name];
      const std::string name = form->name + (number > 1 ? "." + std::to_string(number) : "");
      sight.windows.push_back(name);
      sight.facts[name] = WindowFacts(*form).All();
    }
    Facts& desktop = sight.facts[""];
    desktop = {{"clipboard", host_.clipboard},
               {"pages", std::to_string(host_.pages.size())},
               {"copied", std::to_string(host_.copied.size())},
               {"pictures", Join(host_.pictures, " ")},
               {"help", Join(host_.helpTopics, " ")}};
    for (const auto& [name, tell] : facts_) desktop.emplace_back(name, tell());
    return sight;
  }

  /// Writes down what is new since the last line.
  void Tell() {
    const Sight now = Look();
    std::vector<std::string> changes = std::exchange(shown_, {});
    for (; boxes_ < host_.boxes.size(); ++boxes_) changes.push_back(ToldBox(host_.boxes[boxes_]));
    for (const auto& [name, take] : events_)
      if (const std::string what = take(); !what.empty())
        changes.push_back(name + " " + OneLine(what));
    for (const std::string& window : before_.windows)
      if (!now.facts.contains(window)) changes.push_back("-" + window);
    for (const std::string& window : now.windows)
      if (!before_.facts.contains(window)) changes.push_back("+" + window);
    for (const auto& [window, facts] : now.facts) AddChanges(window, facts, now, changes);
    before_ = now;
    if (!changes.empty()) told_ += " -> " + Join(changes, ", ");
  }
  void AddChanges(const std::string& window, const Facts& facts, const Sight& now,
                  std::vector<std::string>& changes) const {
    const auto before = before_.facts.find(window);
    if (before == before_.facts.end()) return;  // that it is open now says it
    const std::map<std::string, std::string> known(before->second.begin(), before->second.end());
    const bool front = window.empty() || window == now.windows.back();
    const std::string where = front ? "" : window + "/";
    std::vector<const WindowFacts::Fact*> news;
    for (const WindowFacts::Fact& fact : facts) {
      const auto found = known.find(fact.first);
      const bool isNew = found == known.end() || found->second != fact.second;
      if (isNew && !IsPassedOver(fact.first)) news.push_back(&fact);
    }
    for (std::size_t n = 0, end; n < news.size(); n = end) {
      for (end = n + 1; end < news.size() && AreAlike(*news[end - 1], *news[end]);) ++end;
      const std::string& last = news[end - 1]->first;
      const std::string upTo = end - n > 1 ? " to " + last.substr(last.find('[')) : "";
      changes.push_back(where + Told(news[n]->first + upTo, news[n]->second));
    }
    const std::map<std::string, std::string> left(facts.begin(), facts.end());
    for (const auto& [name, value] : before->second)
      if (name.find("] ") != std::string::npos && !left.contains(name) && !IsPassedOver(name))
        changes.push_back(where + name + " gone");
  }
  /// Cells of one grid, rows of one list, that have become the same.
  static bool AreAlike(const WindowFacts::Fact& one, const WindowFacts::Fact& next) {
    const auto bracket = one.first.find('[');
    return bracket != std::string::npos && one.second == next.second &&
           one.first.compare(0, bracket + 1, next.first, 0, bracket + 1) == 0 &&
           one.first.substr(one.first.rfind(']')) == next.first.substr(next.first.rfind(']'));
  }
  bool IsPassedOver(const std::string& name) const {
    return std::any_of(passedOver_.begin(), passedOver_.end(),
                       [&](const auto& part) { return name.find(part) != std::string::npos; });
  }
  /// "cmdSave enabled" = "false" as "cmdSave off".
  static std::string Told(const std::string& name, const std::string& value) {
    static constexpr struct {
      std::string_view fact, yes, no;
    } kWords[] = {{" enabled", " on", " off"},
                  {" visible", " shown", " hidden"},
                  {" checked", " checked", " unchecked"},
                  {" selected", " selected", " unselected"}};
    for (const auto& word : kWords)
      if (name.ends_with(word.fact) && (value == "true" || value == "false"))
        return name.substr(0, name.size() - word.fact.size()) +
               std::string(value == "true" ? word.yes : word.no);
    return name + "=" + OneLine(value);
  }
  /// "[53 ok]", "[open "Open" of Logs (*.txt) /log.txt]"; the text where a box has no number.
  static std::string ToldBox(const Value& box) {
    std::map<std::string, std::string> facts;
    for (const auto& [name, value] : std::get<Object>(box.Get()))
      facts[name] = WindowFacts::Text(value);
    const std::string filter = facts["filter"].substr(0, facts["filter"].find('|'));
    std::string what = facts["dialog"] + " \"" + facts["title"] + "\"";
    if (!filter.empty()) what += " of " + filter;
    if (facts["dialog"].empty()) what = facts["id"] == "0" ? facts["text"] : facts["id"];
    return "[" + OneLine(what) + " " + facts["reply"] + "]";
  }
  static std::string OneLine(std::string text) {
    std::erase(text, '\r');
    return Join(Split(text, '\n'), "\\n");
  }

  RecordingHost& host_;
  ScriptUser user_;
  std::map<std::string, std::function<void(const Words&)>> verbs_;
  std::vector<std::pair<std::string, std::function<std::string()>>> facts_, events_;
  std::vector<std::string> passedOver_, lines_, shown_;
  std::size_t next_ = 0, boxes_ = 0;
  std::string told_;
  Sight before_;
};

/// That the next story of this test comes out as the .story beside its source tells.
#define EXPECT_STORY(story) StoryFile(TARNVIEW_TESTS, __FILE__).Expect(story, ++(story).expected)

}  // namespace tarnview
