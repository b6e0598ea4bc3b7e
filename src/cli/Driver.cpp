#include "cli/Driver.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/Json.h"
#include "ui/Chart.h"

namespace tarnview {
namespace {

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
    if (error_) return false;
    const auto line = script_();
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
      {"open", &Driver::OpenLogFile}, {"show", &Driver::ShowFacts}, {"chart", &Driver::ShowChart},
      {"boxes", &Driver::ShowBoxes},  {"run", &Driver::ShowRuns},
  };
  return verbs;
}

void Driver::DoLine(const ScriptLine& line) {
  const std::string& verb = line.words.front();
  const auto& verbs = Verbs();
  const auto found =
      std::find_if(verbs.begin(), verbs.end(), [&](const Verb& row) { return verb == row.name; });
  if (found != verbs.end())
    (this->*found->run)({line.words.begin() + 1, line.words.end()});
  else if (!user_.Do(line.words))
    WorkControl(line.words);
}

void Driver::WorkControl(Words words) {
  for (std::size_t i = 2; i < words.size(); ++i) words[i] = FromUtf8(words[i]);
  user_.Work(words);
}

int Driver::GuessedType(const std::string& path) const {
  const Globals& globals = program_.Global();
  return globals.kinds.gcolFileTypes.GuessFileType(path, globals.settings.gintDefaultFileType);
}

void Driver::OpenLogFile(const Words& words) {
  const std::string& path = WordAt(words, 0);
  const clsFileTypes& types = program_.Global().kinds.gcolFileTypes;
  const int type = words.size() > 1 ? StringToLong(words[1]) : GuessedType(path);
  nextFile = Answer{Answer::Kind::File, path, 0, types.SequenceFromID(type)};
  program_.MainWindow().mnuFileOpen.Do({"click", {}});
}

void Driver::ShowFacts(const Words& words) {
  const Form* form = words.empty() ? &user_.Active() : user_.FindWindow(words[0]);
  std::vector<const Control*> controls;
  if (form) {
    controls.assign(form->Controls().begin(), form->Controls().end());
  } else {
    const Control& control = user_.FindControl(words[0]);
    controls.push_back(&control);
    form = &control.form;
  }
  Print(ToJson(WindowFacts(*form, controls)));
}

void Driver::ShowChart(const Words& words) {
  Control& control = user_.FindControl(WordAt(words, 0));
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

}  // namespace tarnview
