#pragma once

#include <memory>
#include <string>

#include "app/Program.h"
#include "support/DeskTest.h"
#include "support/RecordingProcesses.h"
#include "support/SmallLog.h"
#include "support/WindowActions.h"

namespace tarnview {

/// The whole program on a disk in memory, before a desktop that records. Its story passes over what
/// a command may do (a table in MenusTest), lists and the main chart: "show" tells of them.
class ProgramFixture : public DeskTest {
 protected:
  ProgramFixture() {
    for (const char* part : {" enabled", "lvw", "chSampleGraph", "hsb", "ZoneInfl", "mnu",
                             "proProgInd", "fraPicture", "updPlot"})
      story.PassOver(part);
    story.Verb("start", [this](const Words& words) { Start(WordOr(words, 0)); });
    story.Verb("load", [this](const Words& words) {
      Opened(Main().LoadDataFile(words[0], StringToLong(WordOr(words, 1))));
    });
    story.Verb("open", [this](const Words& words) {
      Opened(Main().Files().OpenFile(words[0], StringToLong(WordOr(words, 1))));
    });
    story.Verb("drop", [this](const Words& words) { Main().DropFile(words[0]); });
    story.Verb("range", [this](const Words& words) { Draw(words[0], words[1]); });
    story.Verb("put", [this](const Words& words) { files.files[words[0]] = WordOr(words, 1); });
    story.Verb("lose", [this](const Words& words) { files.files.erase(words[0]); });
    story.Verb("disk", [this](const Words& words) { files.failWrites = words[0] == "full"; });
    story.Fact("graph", [this] { return Graph(); });
    story.Fact("edited", [this] { return Runs() && Log().gblnZonesDirty ? "yes" : "no"; });
    story.Event("wrote", [this] { return Written(); });
    story.Event("opened", [this] { return std::exchange(opened_, ""); });
  }
  void Start(const std::string& commandLine = "", const std::string& settings = "") {
    files.files["/car/error.log"] = "old";
    if (!settings.empty()) files.files["/car/Tarnview.ini"] = settings;
    Run(commandLine, ProgramFolders{}, settings.empty() ? "" : "/car/Tarnview.ini");
  }
  /// As tarnview starts: settings and reports are kept in /car/.
  void StartKeeping(const std::string& settings, const ProgramFolders& folders,
                    const std::string& commandLine = "") {
    files.files["/car/Tarnview.ini"] = settings;
    Run(commandLine, folders, "");
  }
  /// Starts and opens /logs/run.txt, with no boxes left of that.
  void Open(int samples, const std::string& settings = "",
            const std::function<void(SmallSample&)>& shape = {}) {
    files.files["/logs/run.txt"] = SmallLog(samples, shape);
    Start("", settings);
    Main().LoadDataFile("/logs/run.txt", 0);
    host.messages.clear();
  }
  frmDataLogViewer& Main() { return program->MainWindow(); }
  const OpenLog& Log() { return program->Global().log; }
  Settings& Set() { return program->Global().settings; }
  /// What a user does in the main window: see Act.
  void Do(const std::string& actions) { Act(Main(), actions); }
  void Draw(const std::string& from, const std::string& to) {
    Main().PlotRangeFrom.Text = from;
    Main().PlotRangeTo.Text = to;
    Main().cmdDrawGraph.Press();
  }
  std::string Range() { return Main().PlotRangeFrom.Text() + "-" + Main().PlotRangeTo.Text(); }
  /// What a file's opening answered, which the story tells.
  void Opened(bool loaded) { opened_ += loaded ? "yes" : "no"; }
  /// A fact that the story tells of the program while it runs.
  template <class Tell>
  void Fact(const std::string& name, Tell tell) {
    story.Fact(name, [this, tell] { return Runs() ? std::string(tell()) : std::string(); });
  }
  /// Whether the main window is open.
  bool Runs() const {
    return program && std::any_of(host.open.begin(), host.open.end(), [](const Form* form) {
             return form->name == "frmDataLogViewer";
           });
  }
  /// What the chart shows and the sample that is selected in it: "501-601 at 551".
  std::string Graph() {
    if (!Runs() || !Main().chSampleGraph.Visible()) return "none";
    const DrawnGraph& drawn = Main().Drawn();
    return std::to_string(drawn.lngPlotFirstIndex + 1) + "-" +
           std::to_string(drawn.lngPlotLastIndex + 1) + " at " +
           std::to_string(Main().Selected().lngHighlightSample());
  }

  RecordingProcesses processes;
  std::unique_ptr<Program> program;

 private:
  using Words = Story::Words;
  static std::string WordOr(const Words& words, std::size_t n) {
    return n < words.size() ? words[n] : "";
  }
  /// The files that were written, renamed or deleted since the last time.
  std::string Written() {
    std::string told;
    for (; seen_ < files.accesses.size(); ++seen_)
      for (const char* verb : {"write ", "append ", "delete "})
        if (const std::string& access = files.accesses[seen_];
            access.starts_with(verb) && !access.ends_with("error.log"))
          told += (told.empty() ? "" : " ") + FileTitle(access);
    return told;
  }
  void Run(const std::string& commandLine, const ProgramFolders& folders,
           const std::string& settingsFile) {
    program.reset();
    host.open.clear();
    program = std::make_unique<Program>(host, files, clock, processes, folders, settingsFile);
    program->Start(commandLine, false);
  }
  std::size_t seen_ = 0;
  std::string opened_;
};

}  // namespace tarnview
