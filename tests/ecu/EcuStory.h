#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "ecu/Capture.h"
#include "ecu/Upload.h"
#include "ecu/frmConvertBIN.h"
#include "ecu/frmNewDownload.h"
#include "model/GeneralSettings.h"
#include "support/FixedClock.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingProcesses.h"
#include "support/Table.h"
#include "support/WholeWindow.h"
#include "support/WindowActions.h"
#include "ui/RecordingHost.h"
#include "zones/MapFile.h"
#include "zones/ZoneNames.h"

namespace tarnview {

/// A program with ECU programs /link/L.exe and /mdos/C.exe and logs in /logs, and the story of its
/// use: steps with "; " between them, and all that happened with " | " between.
class EcuStory : private RecordingHost,
                 private RecordingProcesses,
                 private Capture::MainWindow,
                 private Upload::Editor {
 public:
  EcuStory() : files_(memory_), programs_(*this, *this) {
    Prepare();
    Do("file /link/L.exe=; file /mdos/C.exe=; file /logs/old.txt=old");
  }
  EcuStory(FileSystem& files, Processes& processes) : files_(files), programs_(processes, *this) {
    Prepare();
  }

  std::string Do(const std::string& steps) {
    for (const std::string& step : SplitAt(steps, "; ")) {
      const auto blank = std::min(step.find(' '), step.size() - 1);
      const auto verb = Verbs().find(step.substr(0, step.find(' ')));
      EXPECT_NE(verb, Verbs().end()) << step;
      if (verb != Verbs().end()) verb->second(step.substr(blank + 1));
    }
    return std::exchange(told_, "");
  }
  const EcuWorld& World() const { return world_; }

 private:
  using Texts = std::vector<std::string>;

  void Prepare() {
    Do("set Log EXE=/link/L.exe; set Conversion EXE=/mdos/C.exe; "
       "set Default Working Directory=/logs/; set Default Chip Date=2003-06-09; "
       "set Default Engine Size=1.8; set Default Atmospheric Pressure=98; form 1.8 2003-06-09; "
       "user frmNewDownload type txtFileName run, click cmdOK; user frmUpload click cmdOK; "
       "user frmUploadConf click cmdYes; user frmConvertBIN type txtPath(0) /logs/run.bin, "
       "type txtPath(1) /logs/run, click cmdOK; L /link/miata.dat=binary /link/miata.map=zones");
    for (std::size_t n = 0; n < form_.zones.size(); ++n)
      form_.zones[n] = static_cast<std::int16_t>(n);
    WhyNotSave = [this](const Dialog& chosen) {
      if (!chosen.ofOpenFile && chosen.path == openFile_) return "Open:";
      return files_.MayReplace(chosen.path) ? "" : "Protected:";
    };
    work = [this](Form& form) { Use(form); };
    messages_.ShowNonModal = [this](auto&&...) { Tell("not in a box"); };
    whileRunning = [this](const std::string& command) {
      if (const auto program = writes_.find(command[1]); program != writes_.end())
        for (const std::string& file : program->second) Put(file);
      else
        Put("/mdos/miatatmp.txt=text of " + Get("/mdos/miatatmp.bin"));
    };
  }

  const std::map<std::string, std::function<void(const std::string& rest)>>& Verbs() {
    if (!verbs_.empty()) return verbs_;
    verbs_["set"] = [this](const std::string& line) {  // KEY=VALUE, as the file of settings has it
      for (const SettingRow& row : AllSettings())
        if (line.starts_with(std::string(row.key) + "="))
          row.take(settings_, line.substr(line.find('=') + 1));
    };
    verbs_["file"] = [this](const std::string& file) { Put(file); };  // PATH=TEXT
    verbs_["gone"] = [this](const std::string& path) { files_.DeleteFile(path); };
    verbs_["broken"] = [this](const std::string& path) { memory_.broken.insert(path); };
    verbs_["protected"] = [this](const std::string& path) { memory_.readOnly.insert(path); };
    verbs_["open"] = [this](const std::string& path) { openFile_ = path; };
    // What is done in a window, " then " before what is done in the next one of its class.
    verbs_["user"] = [this](const std::string& line) {
      users_[line.substr(0, line.find(' '))] = SplitAt(line.substr(line.find(' ') + 1), " then ");
    };
    verbs_["zones"] = [this](const std::string&) {
      users_["frmNewDownload"] = {"type txtFileName run, click radFileType(1), click cmdOK"};
    };
    verbs_["L"] = [this](const std::string& does) { writes_['l'] = Split(does, ' '); };
    verbs_["C"] = [this](const std::string& does) { writes_['m'] = Split(does, ' '); };
    verbs_["exits"] = [this](const std::string& code) { exitCodes.push_back(std::stoi(code)); };
    verbs_["trouble"] = [this](const std::string& why) { trouble = why; };
    verbs_["ended"] = [this](const std::string&) { anyLeftAlone = false; };
    verbs_["answer"] = [this](const std::string& line) {
      using enum Answer::Kind;
      static const std::map<std::string, Answer::Kind> kKinds{
          {"yes", Yes}, {"no", No}, {"stop", Stop}, {"cancel", Cancel}};
      const auto kind = kKinds.find(line);
      answers.push_back(kind == kKinds.end() ? Answer{File, line} : Answer{kind->second});
    };
    verbs_["form"] = [this](const std::string& chip) {
      form_ = {Size(chip), Day(chip), form_.zones};
    };
    // Another value in z1 and none in z875.
    verbs_["comparison"] = [this](const std::string& chip) {
      comparison_.emplace();
      comparison_->zones = form_.zones;
      comparison_->chip = {Size(chip), Day(chip), 2};
      comparison_->zones[1] = 99;
      comparison_->zones[255] = -1;
    };
    verbs_["fails"] = [this](const std::string& what) { fails_.insert(what); };
    verbs_["capture"] = [this](const std::string&) { capture_.Run(); };
    verbs_["upload"] = [this](const std::string&) { upload_.Run(form_); };
    verbs_["convert"] = [this](const std::string&) {
      frmConvertBIN window(world_, openFile_);
      window.ShowModal();
      Tell("target " + OrElse(window.TargetPath(), "none"));
    };
    verbs_["setting"] = [this](const std::string& key) {
      for (const SettingRow& row : AllSettings())
        if (key == row.key) Tell(row.text(settings_));
    };
    verbs_["read"] = [this](const std::string& path) { Tell(Get(path)); };
    verbs_["left"] = [this](const std::string&) { Tell(LeftAlone()); };
    verbs_["list"] = [this](const std::string& start) {
      std::string names;
      for (const auto& [path, bytes] : memory_.files)
        if (path.starts_with(start)) names += path + " ";
      Tell(names);
    };
    return verbs_;
  }

  void Tell(const std::string& what) { told_ += (told_.empty() ? "" : " | ") + what; }
  void Put(const std::string& file) {
    if (const auto sign = file.find('='); sign != std::string::npos)
      files_.Write(file.substr(0, sign), file.substr(sign + 1));
  }
  std::string Get(const std::string& path) {
    const auto bytes = files_.Read(path);
    return bytes ? std::string(std::string_view(*bytes)) : "";
  }
  /// The zones of TVW.map that are left alone, or all but those that are not.
  std::string LeftAlone() {
    const ZoneSettings zones = ParseMap(Get("/link/TVW.map"), Settings{}, true).map.zones;
    std::string names[2];
    for (std::size_t n = 0; n < zones.size(); ++n)
      names[zones[n] == -1] += " " + ZoneName(static_cast<int>(n));
    if (names[0].size() < names[1].size()) return "all but" + names[0];
    return names[1].substr(1);
  }
  static double Size(const std::string& chip) { return std::stod(chip); }
  static Date Day(const std::string& chip) { return StringToDate(chip.substr(4), kNoDate); }

  /// "show NAME" among what the user does tells what a control holds, and "<" where it has the
  /// focus; "whole" compares the window with its text.
  void Use(Form& form) {
    Tell(form.name);
    Texts& turns = users_[form.name];
    const std::string actions = turns.front();
    if (turns.size() > 1) turns.erase(turns.begin());
    for (const std::string& action : SplitAt(actions, ", ")) {
      if (action.starts_with("show "))
        Tell(Shown(*ControlOf(form, action.substr(5))));
      else if (action == "whole")
        ExpectWhole(form, TARNVIEW_TESTS);
      else
        Act(form, action);
    }
    if (form.IsShown()) Tell("stays");
  }
  static std::string Shown(const Control& control) {
    std::string facts;
    for (const auto& [name, value] : control.Facts()) {
      if (const auto* text = std::get_if<std::string>(&value.Get());
          text && (name != "caption" || control.Kind() == "label"))
        facts += *text;
      if (const auto* flag = std::get_if<bool>(&value.Get()); flag && name != "visible" && !*flag)
        facts += " not " + name;
    }
    return facts + (control.form.ActiveControl() == &control ? "<" : "");
  }

  Reply Ask(const Box& box) override {
    Tell((box.id ? std::to_string(box.id) : box.text) + "/" + std::to_string(box.style));
    return RecordingHost::Ask(box);
  }
  bool Choose(Dialog& dialog) override {
    Tell(dialog.title + " from " + dialog.initialPath);
    return RecordingHost::Choose(dialog);
  }
  RunResult Run(const ProgramCall& call, const std::string& folder,
                const std::function<bool()>& keepWaiting) override {
    Tell("run " + call.Text() + " in " + folder);
    return RecordingProcesses::Run(call, folder, keepWaiting);
  }
  /// What the main window was asked for; false where the story lets it fail.
  bool Asked(const std::string& what, const std::string& with = "") {
    Tell(what + with);
    return !fails_.contains(what);
  }
  bool SaveChangesPrompt() override { return Asked("prompt"); }
  void CloseDataLogFile() override { Asked("close"); }
  bool LoadDataFile(const std::string& path, int fileType) override {
    return Asked("load", " " + path + " " + std::to_string(fileType));
  }
  bool SaveMapFile(const std::string& path) override { return Asked("save", " " + path); }
  void Say(const std::string& status) override { Asked("say", " " + status); }
  ComparisonChoices ChoicesForComparison() override {
    return {{"/logs/a.txt", "/logs/b.map"}, "filter"};
  }
  std::optional<ZoneMap> LoadComparison(const std::string& path) override {
    Asked("compare", " " + path);
    return comparison_;
  }

  std::string told_, openFile_;
  std::map<std::string, std::function<void(const std::string& rest)>> verbs_;
  std::map<std::string, Texts> users_;
  std::map<char, Texts> writes_;  ///< by the program's folder; without an entry /mdos converts
  std::set<std::string> fails_;
  ZonesToUpload form_;
  std::optional<ZoneMap> comparison_;
  MemoryFileSystem memory_;
  FileSystem& files_;
  FixedClock clock_;
  Settings settings_;
  EXEFunctions programs_;
  Messages messages_{*this, [](int) { return ""; }};
  EcuWorld world_{*this, settings_, files_, clock_, programs_, messages_};
  Capture capture_{world_, *this};
  Upload upload_{world_, *this};
};

/// All that a story told as one line of a table.
inline std::string InOneLine(const std::string& told) {
  return Join(SplitAt(Join(SplitAt(told, " | "), "; "), "\r\n"), "\\n");
}

/// Each line a story from its start: steps, " -> ", what they told.
inline void ExpectStories(const std::string& table, const char* source = __builtin_FILE(),
                          int line = __builtin_LINE()) {
  ExpectTable([](const TableRow& row) { return InOneLine(EcuStory().Do(row.All())); }, table,
              source, line);
}

}  // namespace tarnview
