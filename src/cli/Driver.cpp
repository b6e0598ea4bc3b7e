#include "cli/Driver.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/Json.h"
#include "ui/Chart.h"

namespace tarnview {
namespace {

const std::string& WordAt(const std::vector<std::string>& words, std::size_t n) {
  if (n >= words.size()) throw CannotDo("words are missing");
  return words[n];
}

/// "NAME.2" is the second window of that class.
std::pair<std::string, int> NameAndNumber(const std::string& text) {
  const auto dot = text.rfind('.');
  if (dot == std::string::npos ||
      text.find_first_not_of("0123456789", dot + 1) != std::string::npos)
    return {text, 1};
  return {text.substr(0, dot), StringToLong(text.substr(dot + 1))};
}

Object WindowFacts(const Form& form, const std::vector<const Control*>& controls) {
  Object all;
  for (const Control* control : controls) all.emplace_back(control->FullName(), control->Facts());
  const Control* focus = form.ActiveControl();
  return {{"window", form.name},
          {"caption", form.Caption()},
          {"focus", focus ? focus->FullName() : std::string()},
          {"controls", std::move(all)}};
}

}  // namespace

RunResult ScriptProcesses::Run(const ProgramCall& call, const std::string& folder,
                               const std::function<bool()>& keepWaiting) {
  commands.emplace_back(call.Text());
  return RealProcesses::Run(call, folder, keepWaiting);
}

int ScriptProcesses::Open(const std::string& path) {
  constexpr int kOpened = 33;
  commands.emplace_back(path);
  return kOpened;
}

Driver::Driver(ScriptSource script, const std::string& settingsFile,
               const std::string& writeSettings)
    : script_(std::move(script)),
      writesSettings_(!writeSettings.empty()),
      program_(*this, files_, clock_, processes_, {}, settingsFile) {
  program_.WriteSettingsTo(writeSettings);
  program_.Start("", false);
}

bool Driver::Run() {
  while (Step()) {
  }
  if (error_) throw *error_;
  if (!writesSettings_) return true;
  const bool closed = program_.MainWindow().Unload();
  const auto notWritten = [](const Box& box) {
    return box.id == static_cast<int>(Message::SettingsNotWritten);
  };
  const bool written = std::none_of(messages.begin(), messages.end(), notWritten);
  return closed && written && !program_.Global().gstrINIFileToWrite.empty();
}

/// A modal window holds the script until it closes. A script that ends first leaves it as its frame
/// would.
void Driver::RunModal(Form& form) {
  constexpr int kMostModalWindows =
      50;  // more than any use of the program brings up, and few for the stack
  if (++modalWindows_ > kMostModalWindows) Fail("too many windows stand one over the other");
  while (form.IsShown() && Step()) {
  }
  if (form.IsShown()) form.Unload();
  --modalWindows_;
}

bool Driver::Step() {
  try {
    const auto line = error_ ? std::nullopt : script_();
    if (!line) return false;
    line_ = line->number;
    events.Run("Driver", line->words.front(), [&] { DoLine(*line); });
  } catch (const CannotDo& error) {
    Fail(error.what());
  } catch (const ScriptError& error) {
    line_ = error.line;
    Fail(error.what());
  }
  return !error_;
}

void Driver::Fail(const std::string& why) {
  if (!error_) error_.emplace(why, line_);
}

const std::vector<Driver::Verb>& Driver::Verbs() {
  static const std::vector<Verb> verbs{
      {"open", &Driver::OpenLogFile},   {"key", &Driver::PressKey},
      {"answer", &Driver::QueueAnswer}, {"close", &Driver::Close},
      {"show", &Driver::ShowFacts},     {"chart", &Driver::ShowChart},
      {"boxes", &Driver::ShowBoxes},    {"run", &Driver::ShowRuns},
      {"popup", &Driver::Popup},
  };
  return verbs;
}

void Driver::DoLine(const ScriptLine& line) {
  const std::string& verb = line.words.front();
  const Words words(line.words.begin() + 1, line.words.end());
  const auto& verbs = Verbs();
  const auto found =
      std::find_if(verbs.begin(), verbs.end(), [&](const Verb& row) { return verb == row.name; });
  if (found != verbs.end())
    (this->*found->run)(words);
  else
    WorkControl(verb, words);
}

void Driver::WorkControl(const std::string& verb, const Words& words) {
  Control& control = FindControl(WordAt(words, 0));
  Action action{verb, {}};
  for (std::size_t i = 1; i < words.size(); ++i) action.words.push_back(FromUtf8(words[i]));
  control.Do(action);
}

void Driver::OpenLogFile(const Words& words) {
  const Globals& globals = program_.Global();
  const clsFileTypes& types = globals.kinds.gcolFileTypes;
  const std::string& path = WordAt(words, 0);
  const int type = words.size() > 1
                       ? StringToLong(words[1])
                       : types.GuessFileType(path, globals.settings.gintDefaultFileType);
  nextFile = Answer{Answer::Kind::File, path, 0, types.SequenceFromID(type)};
  program_.MainWindow().mnuFileOpen.Do({"click", {}});
}

void Driver::PressKey(const Words& words) {
  const auto key = ParseKeys(WordAt(words, 0));
  if (!key) throw CannotDo("no key is called \"" + words[0] + "\"");
  Active().Press(*key);
}

void Driver::QueueAnswer(const Words& words) {
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
    answers.push_back(answer);
    return;
  }
  throw CannotDo("no reply is called \"" + words[0] + "\"");
}

void Driver::Close(const Words& words) {
  Form* form = words.empty() ? &Active() : FindWindow(words[0]);
  if (!form) throw CannotDo("no window \"" + words[0] + "\" is open");
  form->Unload();
}

void Driver::ShowFacts(const Words& words) {
  const Form* form = words.empty() ? &Active() : FindWindow(words[0]);
  std::vector<const Control*> controls;
  if (form) {
    controls.assign(form->Controls().begin(), form->Controls().end());
  } else {
    const Control& control = FindControl(words[0]);
    controls.push_back(&control);
    form = &control.form;
  }
  Print(ToJson(WindowFacts(*form, controls)));
}

void Driver::ShowChart(const Words& words) {
  Control& control = FindControl(WordAt(words, 0));
  const auto* chart = dynamic_cast<const Chart*>(&control);
  if (!chart) throw CannotDo(control.FullName() + " is no chart");
  Print(ToJson(chart->FullDescription()));
}

void Driver::ShowBoxes(const Words&) {
  Print(ToJson(Value(boxes)));
  boxes.clear();
}

void Driver::ShowRuns(const Words&) {
  Print(ToJson(Value(processes_.commands)));
  processes_.commands.clear();
}

void Driver::Popup(const Words& words) {
  Control& control = FindControl(WordAt(words, 0));
  control.Do({"popup", {}});
  FindIn(control.form, WordAt(words, 1)).Do({"click", {}});
}

Form& Driver::Active() {
  if (!Front()) throw CannotDo("no window is open");
  return *Front();
}

Form* Driver::FindWindow(const std::string& text) {
  const auto [name, number] = NameAndNumber(text);
  int seen = 0;
  for (Form* form : open)
    if (form->name == name && ++seen == number) return form;
  return nullptr;
}

Control& Driver::FindControl(const std::string& text) {
  const auto slash = text.find('/');
  Form* form = slash == std::string::npos ? &Active() : FindWindow(text.substr(0, slash));
  if (!form) throw CannotDo("no window \"" + text.substr(0, slash) + "\" is open");
  return FindIn(*form, slash == std::string::npos ? text : text.substr(slash + 1));
}

/// "NAME", or "NAME(2)" for a member of an array.
Control& Driver::FindIn(const Form& form, std::string name) {
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

}  // namespace tarnview
