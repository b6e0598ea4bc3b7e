#include "ui/ScriptUser.h"

#include <algorithm>

#include "base/Numbers.h"
#include "ui/Form.h"

namespace tarnview {
namespace {

/// "NAME.2" is the second window of that class.
std::pair<std::string, int> NameAndNumber(const std::string& text) {
  const auto dot = text.rfind('.');
  if (dot == std::string::npos ||
      text.find_first_not_of("0123456789", dot + 1) != std::string::npos)
    return {text, 1};
  return {text.substr(0, dot), StringToLong(text.substr(dot + 1))};
}

/// "NAME", or "NAME(2)" for a member of an array.
Control& FindIn(const Form& form, std::string name) {
  const std::string wanted = name;
  int index = -1;
  if (const auto bracket = name.find('('); bracket != std::string::npos && name.ends_with(')')) {
    index = StringToLong(name.substr(bracket + 1, name.size() - bracket - 2));
    name.resize(bracket);
  }
  Control* control = form.Find(name, index);
  if (!control) throw CannotDo(form.name + " has no control \"" + wanted + "\"");
  return *control;
}

}  // namespace

const std::string& WordAt(const ScriptUser::Words& words, std::size_t n) {
  if (n >= words.size()) throw CannotDo("words are missing");
  return words[n];
}

bool ScriptUser::Do(const Words& words) {
  static constexpr struct {
    const char* name;
    void (ScriptUser::*run)(const Words& words);
  } kVerbs[] = {{"key", &ScriptUser::PressKey},
                {"answer", &ScriptUser::QueueAnswer},
                {"close", &ScriptUser::Close},
                {"popup", &ScriptUser::Popup}};
  for (const auto& verb : kVerbs)
    if (WordAt(words, 0) == verb.name) {
      (this->*verb.run)({words.begin() + 1, words.end()});
      return true;
    }
  return false;
}

void ScriptUser::Work(const Words& words) {
  Control& control = FindControl(WordAt(words, 1));
  control.Do({words[0], {words.begin() + 2, words.end()}});
}

void ScriptUser::PressKey(const Words& words) {
  const auto key = ParseKeys(WordAt(words, 0));
  if (!key) throw CannotDo("no key is called \"" + words[0] + "\"");
  Active().Press(*key);
}

void ScriptUser::QueueAnswer(const Words& words) {
  static constexpr std::pair<const char*, Answer::Kind> kKinds[] = {
      {"yes", Answer::Kind::Yes},       {"no", Answer::Kind::No},
      {"ok", Answer::Kind::Ok},         {"cancel", Answer::Kind::Cancel},
      {"file", Answer::Kind::File},     {"folder", Answer::Kind::Folder},
      {"colour", Answer::Kind::Colour}, {"printer", Answer::Kind::Printer},
      {"stop", Answer::Kind::Stop}};
  for (const auto& [name, kind] : kKinds) {
    if (WordAt(words, 0) != name) continue;
    Answer answer{kind, {}, 0, 0};
    if (kind == Answer::Kind::File || kind == Answer::Kind::Folder) answer.path = WordAt(words, 1);
    if (kind == Answer::Kind::Colour) answer.colour = StringToLong(WordAt(words, 1));
    host_.answers.push_back(answer);
    return;
  }
  throw CannotDo("no reply is called \"" + words[0] + "\"");
}

void ScriptUser::Close(const Words& words) {
  Form* form = words.empty() ? &Active() : FindWindow(words[0]);
  if (!form) throw CannotDo("no window \"" + words[0] + "\" is open");
  form->Unload();
}

void ScriptUser::Popup(const Words& words) {
  Control& control = FindControl(WordAt(words, 0));
  control.Do({"popup", {}});
  FindIn(control.form, WordAt(words, 1)).Do({"click", {}});
}

Form& ScriptUser::Active() {
  if (!host_.Front()) throw CannotDo("no window is open");
  return *host_.Front();
}

Form* ScriptUser::FindWindow(const std::string& text) {
  const auto [name, number] = NameAndNumber(text);
  int seen = 0;
  for (Form* form : host_.open)
    if (form->name == name && ++seen == number) return form;
  return nullptr;
}

Control& ScriptUser::FindControl(const std::string& text) {
  const auto slash = text.find('/');
  if (slash == std::string::npos) return FindIn(Active(), text);
  const Form* form = FindWindow(text.substr(0, slash));
  if (!form) throw CannotDo("no window \"" + text.substr(0, slash) + "\" is open");
  return FindIn(*form, text.substr(slash + 1));
}

}  // namespace tarnview
